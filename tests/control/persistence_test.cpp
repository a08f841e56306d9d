// Saving and loading a control's extent by each interface that containers use.
#include "hosted.h"

namespace {

ComPtr<IDispatch> sized(const ClassIds& ids, LONG width, LONG height) {
  const auto control = create(ids);
  EXPECT_EQ(resize(control.Get(), width, height), S_OK);
  return control;
}

std::pair<LONG, LONG> state_of(IUnknown* control) {
  SIZEL extent = {};
  EXPECT_EQ(as<IOleObject>(control)->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
  return {extent.cx, extent.cy};
}

TEST(Persistence, brings_the_extent_back_by_every_interface) {
  for (const auto& ids : classes) {
    const auto saved = sized(ids, 4321, 1234);
    const auto stream = stream_of("");
    const auto file = new_storage();
    Bag bag;
    const auto streaming = as<IPersistStreamInit>(saved);
    EXPECT_EQ(as<IPersistStorage>(saved)->Save(file.Get(), FALSE), S_OK);
    EXPECT_EQ(as<IPersistPropertyBag>(saved)->Save(&bag, FALSE, TRUE), S_OK);
    EXPECT_EQ(streaming->Save(stream_of("").Get(), FALSE), S_OK);
    EXPECT_EQ(streaming->IsDirty(), S_OK) << "saved without being told to forget it";
    EXPECT_EQ(streaming->Save(stream.Get(), TRUE), S_OK);
    EXPECT_EQ(streaming->IsDirty(), S_FALSE);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    const ComPtr<IDispatch> loaded[] = {create(ids), create(ids), create(ids)};
    EXPECT_EQ(as<IPersistStreamInit>(loaded[0])->Load(stream.Get()), S_OK);
    EXPECT_EQ(as<IPersistStorage>(loaded[1])->Load(file.Get()), S_OK);
    EXPECT_EQ(as<IPersistPropertyBag>(loaded[2])->Load(&bag, nullptr), S_OK);
    for (const auto& one : loaded) {
      EXPECT_EQ(as<IPersistStreamInit>(one)->IsDirty(), S_FALSE);
      EXPECT_EQ(state_of(one.Get()), std::pair(4321L, 1234L));
    }
    CLSID id = {};
    EXPECT_EQ(as<IPersist>(saved)->GetClassID(&id), S_OK);
    EXPECT_EQ(id, guid(ids.class_id));
    EXPECT_EQ(streaming->InitNew(), S_OK);
    EXPECT_EQ(state_of(saved.Get()), std::pair(741L, 741L));
  }
}

TEST(Persistence, loads_what_was_ever_saved_and_refuses_what_is_damaged) {
  const std::string record("ZRB1\xE8\x03\0\0\x84\x03\0\0", 12);  // 1000 by 900
  std::vector<std::pair<std::string, HRESULT>> rows = {{record, S_OK},
                                                       {"X" + record.substr(1), STG_E_DOCFILECORRUPT}};
  for (size_t length = 0; length < record.size(); ++length)
    rows.emplace_back(record.substr(0, length), STG_E_READFAULT);
  for (const char* extent : {"\xFF\xFF\xFF\xFF", "\xFF\xFF\xFF\x7F"}) {
    rows.emplace_back(record.substr(0, 4) + extent + record.substr(8), STG_E_DOCFILECORRUPT);
    rows.emplace_back(record.substr(0, 8) + extent, STG_E_DOCFILECORRUPT);
  }
  for (const auto& [bytes, status] : rows) {
    const auto control = sized(classes[0], 2222, 1111);
    EXPECT_EQ(as<IPersistStreamInit>(control)->Load(stream_of(bytes).Get()), status) << bytes.size();
    EXPECT_EQ(state_of(control.Get()), status ? std::pair(2222L, 1111L) : std::pair(1000L, 900L));
  }
  EXPECT_EQ(as<IPersistStorage>(create(classes[0]).Get())->Load(new_storage().Get()), STG_E_FILENOTFOUND);
}

TEST(Persistence, takes_an_empty_bag_for_the_defaults_and_refuses_a_wrong_one) {
  const std::tuple<std::map<std::wstring, std::wstring>, HRESULT, HRESULT, LONG> rows[] = {
      {{}, S_OK, S_OK, 741},
      {{{L"_ExtentX", L"900"}}, S_OK, S_OK, 900},
      {{{L"_ExtentX", L"wide"}}, S_OK, STG_E_DOCFILECORRUPT, 2222},
      {{{L"_ExtentX", L"900"}, {L"_ExtentY", L"-1"}}, S_OK, STG_E_DOCFILECORRUPT, 2222},
      {{}, E_ACCESSDENIED, E_ACCESSDENIED, 2222}};
  for (const auto& [texts, failure, status, width] : rows) {
    Bag bag;
    bag.texts = texts;
    bag.failure = failure;
    const auto control = sized(classes[0], 2222, 1111);
    EXPECT_EQ(as<IPersistPropertyBag>(control)->Load(&bag, nullptr), status);
    EXPECT_EQ(state_of(control.Get()), std::pair(width, status ? 1111L : 741L));
    EXPECT_EQ(as<IPersistPropertyBag>(control)->Save(&bag, TRUE, TRUE), failure);
  }
}

TEST(Persistence, calls_only_clean_what_was_saved_in_its_place) {
  for (const auto& [same_as_load, into_new, dirty] :
       {std::tuple{FALSE, false, S_OK}, {FALSE, true, S_FALSE}, {TRUE, false, S_FALSE}}) {
    const auto control = create(classes[1]);
    const auto storing = as<IPersistStorage>(control);
    const auto file = new_storage();
    EXPECT_EQ(storing->InitNew(file.Get()), S_OK);
    resize(control.Get(), 3000, 3000);
    EXPECT_EQ(storing->Save(file.Get(), same_as_load), S_OK);
    EXPECT_EQ(storing->HandsOffStorage(), S_OK);
    EXPECT_EQ(storing->SaveCompleted(into_new ? file.Get() : nullptr), S_OK);
    EXPECT_EQ(storing->IsDirty(), dirty) << same_as_load << into_new;
  }
}

}  // namespace
