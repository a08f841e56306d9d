// NewEmail: a mail from plain parameters, which goes on after each failure.
#include <regex>

#include "outlook_test.h"

namespace {

class NewEmail : public OutlookTest {
 protected:
  void compose(bool html, bool send, _variant_t& attachment, const std::string& shown = "") {
    _variant_t reference;
    reference.vt = VT_BYREF | VT_BSTR;
    reference.pbstrVal = &attachment.bstrVal;
    expect(L"NewEmail", {L"t", L"a;b", L"c", text({}), L"\x20ac", L"<p>", html, send, reference}, "bool 0",
           shown);
  }
  static std::string add(const std::string& path) {
    return "get Email.Attachments | call Attachments.Add(bstr \"" + path +
           "\", missing, missing, missing) | ";
  }

  const std::string made =
      "create Outlook.Application | get Application.GetNamespace(bstr \"MAPI\")"
      " | get Application.CreateItem(i4 0) | ";
  const std::string addressed =
      " | put Email.Subject=bstr \"\xe2\x82\xac\" | put Email.To=bstr \"a;b\""
      " | put Email.CC=bstr \"c\" | put Email.BCC=bstr \"\" | ";
  const std::string filled = made + "put Email.Body=bstr \"<p>\"" + addressed,
                    shown = "call Email.Display(missing)", sent = "call Email.Send | call Application.Quit";
};

TEST_F(NewEmail, TakesItsStepsAndUsesTheAttachmentsUp) {
  const std::tuple<const wchar_t*, std::vector<std::string>, std::string> rows[] = {
      {L"", {}, ""},
      {L" a.txt ", {"a.txt"}, " a.txt "},
      {L"a.txt; ;b.txt", {"a.txt", "b.txt"}, "b.txt"},
      {L"a.txt;", {"a.txt"}, ""},
      {L";;", {}, ""},
      {L" a ; b ; c ", {" a ", "b ", "c"}, "c"},
      {L" ;\t", {" ", "\t"}, "\t"},
      {L"  ", {""}, "  "}};
  for (const auto& [given, paths, left] : rows) {
    _variant_t attachment = given;
    compose(false, false, attachment);
    std::string steps = filled;
    for (const auto& path : paths) steps += add(path);
    EXPECT_EQ(log(), steps + shown);
    EXPECT_EQ(describe(attachment), text_result(left));
  }
  _variant_t none = text({});
  compose(true, true, none);
  EXPECT_EQ(log(), made + "put Email.HTMLBody=bstr \"<p>\"" + addressed + sent);
  EXPECT_EQ(last_error(), recorded(0, ""));
  EXPECT_EQ(office_.live, 0);
}

TEST_F(NewEmail, GoesOnAfterTheStatementThatFails) {
  Driven::here().members[1].insert(L"NewEmail");
  for (const bool send : {false, true}) {
    const std::string steps = filled + add("a") + add("b") + (send ? sent : shown);
    static const std::regex bar(" \\| ");
    const std::vector<std::string> lines(std::sregex_token_iterator(steps.begin(), steps.end(), bar, -1), {});
    for_each_step(steps, [&](size_t step, const std::string&, const Fault& fault) {
      make_ready();
      const std::string usual = held(), earlier = last_error();
      // A step is lost with the object that it is asked of.
      const size_t failing = step - 1;
      std::string left = step ? "" : steps, boxes;
      Fault last = fault;
      for (size_t i = 0; step && i < lines.size(); ++i) {
        const bool on_application = lines[i].find(" Application.") != lines[i].npos;
        const bool lost = i > failing && (failing == 0 || (failing == 2 && !on_application) ||
                                          (i == failing + 1 && lines[i].starts_with("call Attachments")));
        if (!lost) left += (left.empty() ? "" : " | ") + lines[i];
        if (i != failing && (!lost || lines[i].starts_with("call Attachments"))) continue;
        if (lost) last = on_application ? Fault{{}, 424, required} : Fault{{}, 91, not_set};
        boxes += (boxes.empty() ? "New Email " : " | New Email ") + last.description;
      }
      office_.fail_at = step;
      _variant_t attachment = L"a;b";
      compose(false, send, attachment, boxes);
      EXPECT_EQ(log(), left);
      EXPECT_EQ(describe(attachment), "bstr \"b\"");
      office_.fail_at = 0;
      EXPECT_EQ(held(), usual);
      EXPECT_EQ(last_error(), step ? recorded(last.number, last.description) : earlier);
      EXPECT_EQ(errors_at_boxes_.empty() ? earlier : errors_at_boxes_[0], earlier) << "box first";
    });
  }
}

TEST_F(NewEmail, RunsShortOfMemory) {
  std::string usual;
  const Arguments arguments = {L"t", L"a;b", L"c", text({}), L"\x20ac", L"<p>", true, true, L"a;b"};
  const auto failed = [](const Fault& fault, const std::string& result, std::string boxes) {
    for (const auto& lost : {required, not_set})
      boxes = std::regex_replace(boxes, std::regex(" \\| New Email " + lost), "");
    return result == "bool 0" && boxes == "New Email " + fault.description;
  };
  const auto ready = [&] {
    make_ready();
    usual = held();
    log();
  };
  run_short(L"NewEmail", arguments, ready, failed, [&] { EXPECT_EQ(held(), usual); });
}

}  // namespace
