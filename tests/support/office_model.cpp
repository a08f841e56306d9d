#include "office_model.h"

#include <oleauto.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <memory>
#include <numeric>
#include <set>
#include <stdexcept>

namespace {

using Microsoft::WRL::ComPtr;

// What members answer that answer an object, as the office applications declare it: "" is any object. With
// arguments: what they really answer then.
struct Answering {
  const char *type, *member;
  size_t arguments;
  const char* answer;
};
const Answering answering[] = {
    {"Application", "CreateItem", 1, ""},
    {"Application", "CreateItem(i4 0)", 0, "MailItem"},
    {"Application", "CreateItem(i4 1)", 0, "AppointmentItem"},
    {"Application", "CreateItem(i4 2)", 0, "ContactItem"},
    {"Application", "CreateItem(i4 3)", 0, "TaskItem"},
    {"Application", "CreateItem(i4 5)", 0, "NoteItem"},
    {"Application", "Documents", 0, "Documents"},
    {"Application", "GetNamespace", 1, "NameSpace"},
    {"Application", "NormalTemplate", 0, "Template"},
    {"Application", "Options", 0, "Options"},
    {"Application", "System", 0, "System"},
    {"AppointmentItem", "GetRecurrencePattern", 0, "RecurrencePattern"},
    {"Attachments", "Item", 1, "Attachment"},
    {"Attachments", "[value]", 1, "Attachment"},
    {"Cell", "Range", 0, "Range"},
    {"Cells", "[value]", 1, "Cell"},
    {"Document", "ActiveWindow", 0, "Window"},
    {"Document", "Range", 2, "Range"},
    {"Document", "Sections", 0, "Sections"},
    {"Document", "Styles", 0, "Styles"},
    {"Documents", "Add", 1, "Document"},
    {"Documents", "Open", 1, "Document"},
    {"Exception", "AppointmentItem", 0, "AppointmentItem"},
    {"Exceptions", "Item", 1, "Exception"},
    {"Global", "System", 0, "System"},
    {"HeaderFooter", "Range", 0, "Range"},
    {"HeadersFooters", "[value]", 1, "HeaderFooter"},
    {"Items", "GetFirst", 0, ""},
    {"Items", "GetNext", 0, ""},
    {"Items", "Restrict", 1, "Items"},
    {"MAPIFolder", "Items", 0, "Items"},
    {"MailItem", "Attachments", 0, "Attachments"},
    {"MailItem", "Recipients", 0, "Recipients"},
    {"NameSpace", "GetDefaultFolder", 1, "MAPIFolder"},
    {"NameSpace", "GetItemFromID", 1, ""},
    {"Paragraph", "Range", 0, "Range"},
    {"Paragraphs", "[value]", 1, "Paragraph"},
    {"Range", "Find", 0, "Find"},
    {"Range", "FormattedText", 0, "Range"},
    {"Recipients", "[value]", 1, "Recipient"},
    {"RecurrencePattern", "Exceptions", 0, "Exceptions"},
    {"RecurrencePattern", "GetOccurrence", 1, "AppointmentItem"},
    {"Row", "Cells", 0, "Cells"},
    {"Rows", "[value]", 1, "Row"},
    {"Section", "Footers", 0, "HeadersFooters"},
    {"Section", "Headers", 0, "HeadersFooters"},
    {"Section", "Range", 0, "Range"},
    {"Sections", "[value]", 1, "Section"},
    {"Selection", "Find", 0, "Find"},
    {"Selection", "Paragraphs", 0, "Paragraphs"},
    {"Selection", "Rows", 0, "Rows"},
    {"Style", "Font", 0, "Font"},
    {"Styles", "[value]", 1, "Style"},
    {"Window", "Selection", 0, "Selection"},
};

const std::map<std::string, std::vector<std::string>> named = {
    {"Add", {"Template"}},
    {"EndOf", {"Unit", "Extend"}},
    {"GoTo", {"What", "Which", "Count", "Name"}},
    {"PrintOut", {"Background", "Append", "Range", "OutputFileName", "From", "To", "Item", "Copies"}},
    {"Resize", {"Width", "Height"}},
    {"StartOf", {"Unit", "Extend"}}};

// Every name that the members use.
const char vocabulary[] =
    "Activate ActivePrinter ActiveWindow Add AllDayEvent AppointmentItem AssistantTelephoneNumber "
    "AttachedTemplate Attachments AutoFormatAsYouTypeApplyNumberedLists BCC BackgroundPrintingStatus "
    "BackgroundSavingStatus BillingInformation BlockLevel Body Business2TelephoneNumber "
    "BusinessAddress BusinessAddressCity BusinessAddressCountry BusinessAddressPostalCode "
    "BusinessAddressState BusinessAddressStreet BusinessFaxNumber BusinessHomePage "
    "BusinessTelephoneNumber CC CarTelephoneNumber Categories Cells CentimetersToPoints Class "
    "ClearFormatting ClearRecurrencePattern Close Color Companies CompanyMainTelephoneNumber "
    "CompanyName Count CreateItem CreationTime Cut DayOfMonth DayOfWeekMask DefaultFilePath Delete "
    "Deleted Display DisplayName Documents DownloadState DueDate Duration Email1Address Email2Address "
    "Email3Address End EndOf EndTime EntryID Exceptions Execute Exists FileName Find FirstName Font "
    "Footers Format FormattedText Forward FullName GetDefaultFolder GetFirst GetItemFromID "
    "GetNamespace GetNext GetOccurrence GetRecurrencePattern GoTo GovernmentIDNumber HTMLBody Headers "
    "Height Home2TelephoneNumber HomeAddress HomeAddressCity HomeAddressCountry HomeAddressPostalCode "
    "HomeAddressState HomeAddressStreet HomeFaxNumber HomeKey HomeTelephoneNumber "
    "HorizontalResolution Importance Information Instance Interval IsConflict IsRecurring Item Items "
    "JobTitle LastModificationTime Left Location MailingAddress MailingAddressCity "
    "MailingAddressCountry MailingAddressPostalCode MailingAddressState MailingAddressStreet "
    "MarkForDownload MatchAllWordForms MatchCase MatchSoundsLike MatchWholeWord MatchWildcards "
    "MeetingStatus MessageClass Mileage MobileTelephoneNumber MonthOfYear Move MoveLeft MoveRight "
    "Name Nickname NoEndDate NormalTemplate Occurrences Open Options OriginalDate OtherAddress "
    "OtherAddressCity OtherAddressCountry OtherAddressPostalCode OtherAddressState OtherAddressStreet "
    "OtherFaxNumber OtherTelephoneNumber Paragraphs Parent Paste PatternEndDate PatternStartDate "
    "PercentComplete PixelsToPoints PrimaryTelephoneNumber PrintOut Quit RadioTelephoneNumber Range "
    "ReceivedTime Recipients RecurrenceState RecurrenceType ReminderMinutesBeforeStart ReminderSet "
    "ReminderTime Resize Restrict Rows Save SaveAs SaveAsFile Saved ScreenUpdating Sections Select "
    "SelectRow SelectedMailingAddress Selection Send SenderEmailAddress SenderName Sensitivity "
    "SetRange Size Sort Start StartDate StartOf StartTime Status Styles Subject System Text Title To "
    "Top Type TypeText UpdateStyles UpdateStylesOnOpen Version VerticalResolution Visible WebPage "
    "Width WindowState Wrap";

// As the mail client's items do, all objects number this one alike.
constexpr DISPID class_id = 0xF00A;
constexpr int ring = 400;  // numbers overlap: what is one name's here is another's there

const GUID library_id = {0x0c1e4a51, 0x7b1d, 0x4f0a, {0x9d, 0x52, 0x11, 0x3a, 0x6e, 0x88, 0x20, 0x4d}};

void require(HRESULT result) {
  if (FAILED(result)) throw std::runtime_error("the office's type library cannot be made");
}

std::vector<std::string> words(const std::string& text) {
  std::vector<std::string> all;
  for (size_t end = 0, begin = 0; end != std::string::npos; begin = end + 1)
    all.push_back(text.substr(begin, (end = text.find(' ', begin)) - begin));
  return all;
}

std::wstring wide(const std::string& text) { return {text.begin(), text.end()}; }

std::vector<std::string> types() {
  std::set<std::string> all;
  for (const Answering& row : answering) all.insert({row.type, *row.answer ? row.answer : row.type});
  return {all.begin(), all.end()};
}

// The library of the process, in a file of the user's temporary folder while the process runs.
class Library {
 public:
  Library() {
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    path_ = folder + (L"zorb office " + std::to_wstring(GetCurrentProcessId()) + L".tlb");
    write();
    require(LoadTypeLibEx(path_.c_str(), REGKIND_NONE, &library_));
    const auto registered = office_kind() == Office::unloadable ? path_ + L".none" : path_;
    require(RegisterTypeLib(library_.Get(), const_cast<wchar_t*>(registered.c_str()), nullptr));
  }
  ~Library() {
    library_.Reset();
    UnRegisterTypeLib(library_id, 1, 0, 0, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
    DeleteFileW(path_.c_str());
  }

  ComPtr<ITypeInfo> type(const std::string& name) {
    const auto all = types();
    ComPtr<ITypeInfo> found;
    const auto position = std::ranges::find(all, name) - all.begin();
    if (position < static_cast<ptrdiff_t>(all.size()))
      library_->GetTypeInfo(static_cast<UINT>(position), &found);
    return found;
  }

 private:
  void write() {
    ComPtr<ICreateTypeLib2> made;
    require(CreateTypeLib2(sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32, path_.c_str(), &made));
    require(made->SetGuid(library_id));
    require(made->SetVersion(1, 0));
    require(made->SetName(const_cast<wchar_t*>(L"RecordingOffice")));
    std::map<std::string, ComPtr<ICreateTypeInfo>> infos;
    ComPtr<ITypeLib> standard;
    ComPtr<ITypeInfo> dispatch;
    require(LoadTypeLib(L"stdole2.tlb", &standard));
    require(standard->GetTypeInfoOfGuid(IID_IDispatch, &dispatch));
    GUID id = library_id;
    for (const auto& type : types()) {
      ++id.Data1;
      HREFTYPE base = 0;
      auto& info = infos[type];
      require(made->CreateTypeInfo(wide(type).data(), TKIND_INTERFACE, &info));
      require(info->SetGuid(id));
      require(info->SetTypeFlags(TYPEFLAG_FDUAL | TYPEFLAG_FOLEAUTOMATION | TYPEFLAG_FDISPATCHABLE));
      require(info->AddRefTypeInfo(dispatch.Get(), &base));
      require(info->AddImplType(0, base));
    }
    std::map<std::string, ComPtr<ITypeInfo>> declared;
    for (const auto& [type, info] : infos) {
      ++id.Data1;
      declared[type] = declared_as(made.Get(), type, id, {infos.begin()->second.Get(), info.Get()});
    }
    for (const auto& [type, info] : infos) {
      UINT index = 0;
      for (const auto& name : words(vocabulary))
        add(infos, declared, type, name, model_identifier(name, shift_of(type)), index++);
      add(infos, declared, type, "[value]", DISPID_VALUE, index);
      require(info->LayOut());
    }
    require(made->SaveAllChanges());
  }

  // A type as members are declared to answer it: another name for a class of whose interfaces, the first one
  // for its events, it is the default.
  static ComPtr<ITypeInfo> declared_as(ICreateTypeLib2* made, const std::string& type, const GUID& id,
                                       const std::array<ICreateTypeInfo*, 2>& interfaces) {
    ComPtr<ICreateTypeInfo> coclass, alias;
    ComPtr<ITypeInfo> referred;
    HREFTYPE reference = 0;
    require(made->CreateTypeInfo(wide("Class" + type).data(), TKIND_COCLASS, &coclass));
    require(coclass->SetGuid(id));
    for (UINT i = 0; i < interfaces.size(); ++i) {
      require(interfaces[i]->QueryInterface(IID_PPV_ARGS(&referred)));
      require(coclass->AddRefTypeInfo(referred.Get(), &reference));
      require(coclass->AddImplType(i, reference));
      require(coclass->SetImplTypeFlags(i, IMPLTYPEFLAG_FDEFAULT | (i == 0 ? IMPLTYPEFLAG_FSOURCE : 0)));
    }
    TYPEDESC description{};
    description.vt = VT_USERDEFINED;
    require(coclass.As(&referred));
    require(made->CreateTypeInfo(wide("Alias" + type).data(), TKIND_ALIAS, &alias));
    require(alias->AddRefTypeInfo(referred.Get(), &description.hreftype));
    require(alias->SetTypeDescAlias(&description));
    require(alias.As(&referred));
    return referred;
  }

  static void add(std::map<std::string, ComPtr<ICreateTypeInfo>>& infos,
                  const std::map<std::string, ComPtr<ITypeInfo>>& declared, const std::string& type,
                  const std::string& name, DISPID id, UINT index) {
    const auto row = std::ranges::find_if(
        answering, [&](const Answering& row) { return row.type == type && row.member == name; });
    const auto& own = argument_names(name);
    const size_t count =
        row == std::end(answering) ? std::max<size_t>(own.size(), 12) : std::max(row->arguments, own.size());
    std::vector<ELEMDESC> parameters(count + 1);
    for (auto& parameter : parameters) {
      parameter.tdesc.vt = VT_VARIANT;
      parameter.paramdesc.wParamFlags = PARAMFLAG_FIN | PARAMFLAG_FOPT;
    }
    TYPEDESC object{}, answer{};
    parameters[count].tdesc.vt = VT_PTR;
    parameters[count].tdesc.lptdesc = &answer;
    parameters[count].paramdesc.wParamFlags = PARAMFLAG_FOUT | PARAMFLAG_FRETVAL;
    FUNCDESC function{};
    function.memid = id;
    function.funckind = FUNC_PUREVIRTUAL;
    function.invkind = INVOKE_FUNC;
    function.callconv = CC_STDCALL;
    function.oVft = static_cast<SHORT>((7 + index) * sizeof(void*));  // behind IDispatch's
    function.cParams = static_cast<SHORT>(parameters.size());
    function.lprgelemdescParam = parameters.data();
    function.elemdescFunc.tdesc.vt = VT_HRESULT;
    answer.vt = row == std::end(answering) ? VT_VARIANT : VT_DISPATCH;
    if (row != std::end(answering) && *row->answer) {
      require(infos.at(type)->AddRefTypeInfo(declared.at(row->answer).Get(), &object.hreftype));
      object.vt = VT_USERDEFINED;
      answer.vt = VT_PTR;
      answer.lptdesc = &object;
    }
    require(infos.at(type)->AddFuncDesc(index, &function));
    std::vector<std::wstring> names = {name == "[value]" ? L"_Default" : wide(name)};
    for (size_t i = 0; i < count; ++i)
      names.push_back(i < own.size() ? wide(own[i]) : L"P" + std::to_wstring(i));
    std::vector<LPOLESTR> pointers;
    for (auto& text : names) pointers.push_back(text.data());
    require(infos.at(type)->SetFuncAndParamNames(index, pointers.data(), static_cast<UINT>(pointers.size())));
  }

  std::wstring path_;
  ComPtr<ITypeLib> library_;
};

}  // namespace

Office office_kind() {
  static const Office kind = [] {
    const char* chosen = std::getenv("ZORB_OFFICE");
    const std::map<std::string, Office> kinds = {{"published", Office::published},
                                                 {"unloadable", Office::unloadable},
                                                 {"own_numbers", Office::own_numbers},
                                                 {"stale", Office::stale}};
    return chosen ? kinds.at(chosen) : Office::plain;
  }();
  return kind;
}

std::vector<std::string>& model_names() {
  static std::vector<std::string> names = words(vocabulary);
  return names;
}

DISPID model_identifier(const std::string& name, int shift) {
  auto& names = model_names();
  if (name == "Class" && office_kind() != Office::plain) return class_id;
  const auto found = std::ranges::find(names, name) - names.begin();
  if (found == static_cast<ptrdiff_t>(names.size())) names.push_back(name);
  if (found >= ring) throw std::runtime_error("more names than numbers");
  return 1 + static_cast<DISPID>(found + shift) % ring;
}

std::string model_name(DISPID identifier, int shift) {
  if (identifier == class_id) return "Class";
  const size_t position = static_cast<size_t>(identifier - 1 + ring - shift) % ring;
  return position < model_names().size() ? model_names()[position] : "";
}

int shift_of(const std::string& key) {
  return std::accumulate(key.begin(), key.end(), 7,
                         [](int sum, char unit) { return (sum * 31 + unit) % ring; });
}

std::string declared_answer(const std::string& type, const std::string& member, size_t arguments) {
  for (const Answering& row : answering) {
    if (row.type != type || row.member != member) continue;
    return arguments > row.arguments ? declared_answer(row.answer, "[value]", arguments) : row.answer;
  }
  return "";
}

const std::vector<std::string>& argument_names(const std::string& member) {
  static const std::vector<std::string> none;
  const auto found = named.find(member);
  return found == named.end() ? none : found->second;
}

ComPtr<ITypeInfo> published_type(const std::string& type) {
  if (office_kind() == Office::plain || office_kind() == Office::own_numbers) return {};
  static Library library;
  return library.type(type);
}
