// The console's window scripts: words checked before the window opens, controls set in the order
// given, a greyed control or a failed Apply closing the window with Cancel.
#include "state/form_script.h"

#include <gtest/gtest.h>

namespace tesk {
namespace {

// A small window: a check box that greys a text box, an indexed text pair, an option row, a
// combo box and two buttons, recording what was done to it.
struct Toy {
  bool open = false;
  bool checked = true;
  std::vector<std::string> done;
  bool applyFails = false;

  ScriptForm form() {
    ScriptForm f;
    f.open = [this] {
      open = true;
      done.push_back("open");
    };
    f.apply = [this] {
      done.push_back("apply");
      if (!applyFails) open = false;
    };
    f.cancel = [this] {
      done.push_back("cancel");
      open = false;
    };
    f.isOpen = [this] { return open; };
    ScriptControl check = ScriptControlOf("chkOn", ScriptKind::Check);
    check.set = [this](int, const std::string& v) {
      checked = v == "1";
      done.push_back("chkOn=" + v);
    };
    check.show = [this](int) { return std::string(checked ? "1" : "0"); };
    ScriptControl text = ScriptControlOf("txtInterval", ScriptKind::Text);
    text.accepts = [](int, const std::string& v) {
      return v.find_first_not_of("0123456789") == std::string::npos;
    };
    text.enabled = [this](int) { return checked; };
    text.set = [this](int, const std::string& v) { done.push_back("txtInterval=" + v); };
    text.show = [](int) { return std::string("60"); };
    ScriptControl pair = ScriptControlOf("TxtStart", ScriptKind::Text, 4, true);
    pair.set = [this](int i, const std::string& v) {
      done.push_back("TxtStart" + std::to_string(i) + "=" + v);
    };
    pair.show = [](int i) { return std::to_string(i * 10); };
    ScriptControl option = ScriptControlOf("OptLines", ScriptKind::Option, 3);
    option.set = [this](int i, const std::string& v) {
      done.push_back("OptLines(" + std::to_string(i) + ")=" + v);
    };
    ScriptControl combo = ScriptControlOf("cmbStop", ScriptKind::Combo);
    combo.accepts = [](int, const std::string& v) { return v == "Off" || v == "3"; };
    combo.set = [this](int, const std::string& v) { done.push_back("cmbStop=" + v); };
    ScriptControl cancel = ScriptControlOf("Command2", ScriptKind::Button);
    cancel.set = [this](int, const std::string&) {
      done.push_back("Command2");
      open = false;
    };
    f.controls = {check, text, pair, option, combo, cancel};
    return f;
  }
};

TEST(FormScript, WordsAreSplitAtBlanksWithQuotedValuesAndAnOpenQuoteIsRefused) {
  const auto words = SplitScriptWords(R"(chkOn=1  TxtStart0="22 00" "cmbStop=a b" Command2)");
  ASSERT_TRUE(words);
  ASSERT_EQ(words->size(), 4u);
  EXPECT_EQ((*words)[1].name, "TxtStart0");
  EXPECT_EQ((*words)[1].value, "22 00");
  EXPECT_EQ((*words)[2].value, "a b");
  EXPECT_FALSE((*words)[3].hasValue);
  const auto empty = SplitScriptWords("TxtStart1=\"\"");
  ASSERT_TRUE(empty);
  EXPECT_TRUE((*empty)[0].hasValue);
  EXPECT_EQ((*empty)[0].value, "");
  EXPECT_FALSE(SplitScriptWords("TxtStart0=\"22"));
}

TEST(FormScript, ControlsAreSetInOrderCaseBlindThenApplied) {
  Toy toy;
  std::vector<std::string> said;
  const auto say = [&said](const std::string& s) { said.push_back(s); };
  EXPECT_TRUE(RunFormScript(toy.form(), "CHKON=1 txtstart3=0200 optlines=2 cmbStop=Off", say));
  EXPECT_TRUE(said.empty());
  EXPECT_EQ(toy.done, (std::vector<std::string>{"open", "chkOn=1", "TxtStart3=0200",
                                                "OptLines(2)=2", "cmbStop=Off", "apply"}));
}

TEST(FormScript, BadWordsAreRefusedBeforeTheWindowOpens) {
  for (const char* bad : {"chkOn=2", "nosuch=1", "TxtStart4=1", "TxtStart=1", "OptLines=3",
                          "txtInterval=6a", "cmbStop=9", "Command2=1", "chkOn", "\"chkOn=1"}) {
    Toy toy;
    std::vector<std::string> said;
    EXPECT_FALSE(RunFormScript(toy.form(), std::string("chkOn=0 ") + bad,
                               [&said](const std::string& s) { said.push_back(s); }))
        << bad;
    EXPECT_EQ(said.size(), 1u) << bad;
    EXPECT_TRUE(toy.done.empty()) << bad;
  }
}

TEST(FormScript, AGreyedControlOrAFailedApplyClosesWithCancelAndAClosingButtonEndsTheScript) {
  Toy greyed;
  std::vector<std::string> said;
  const auto say = [&said](const std::string& s) { said.push_back(s); };
  EXPECT_FALSE(RunFormScript(greyed.form(), "chkOn=0 txtInterval=60 TxtStart0=1", say));
  EXPECT_EQ(greyed.done, (std::vector<std::string>{"open", "chkOn=0", "cancel"}));
  ASSERT_EQ(said.size(), 1u);
  EXPECT_NE(said[0].find("txtInterval"), std::string::npos);

  Toy failing;
  failing.applyFails = true;
  EXPECT_TRUE(RunFormScript(failing.form(), "txtInterval=5", say));
  EXPECT_EQ(failing.done, (std::vector<std::string>{"open", "txtInterval=5", "apply", "cancel"}));

  Toy closed;
  EXPECT_TRUE(RunFormScript(closed.form(), "chkOn=1 Command2 TxtStart0=1", say));
  EXPECT_EQ(closed.done, (std::vector<std::string>{"open", "chkOn=1", "Command2"}));
}

TEST(FormScript, TheListingShowsEveryValueAndNoButtons) {
  Toy toy;
  EXPECT_EQ(ListFormControls(toy.form()),
            (std::vector<std::string>{"chkOn=1", "txtInterval=60", "TxtStart0=0", "TxtStart1=10",
                                      "TxtStart2=20", "TxtStart3=30"}));
}

}  // namespace
}  // namespace tesk
