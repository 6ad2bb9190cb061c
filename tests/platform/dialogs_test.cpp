#include "platform/services/dialogs.h"

#include <gtest/gtest.h>

#include "platform/faults/fault.h"
#include "support/test_support.h"

namespace tagwright {
namespace {

class DialogsTest : public testing::Test {
 protected:
  DialogsTest() { SetDialogs(&dialogs); }
  ~DialogsTest() override { SetDialogs(nullptr); }
  ScriptedDialogs dialogs;
  CommonDialog dialog;
};

TEST_F(DialogsTest, WithoutAServiceEveryQuestionIsBackedOutOf) {
  SetDialogs(nullptr);
  EXPECT_EQ(MessageBox("x", MessageButtons::kYesNoCancel), Answer::kCancel);
  EXPECT_EQ(MessageBox("x", MessageButtons::kYesNo), Answer::kNo);
  EXPECT_EQ(MessageBox("x"), Answer::kOk);
  EXPECT_EQ(InputBox("x", "title", "initial"), "");
  EXPECT_FALSE(Dialogs().OpenFile({}));
  EXPECT_FALSE(Dialogs().SaveFile({}));
  EXPECT_FALSE(Dialogs().ChooseColor(0));
}

TEST_F(DialogsTest, AMessageBoxPassesItsWordsAndAnswer) {
  dialogs.answers = {Answer::kYes};
  EXPECT_EQ(MessageBox("Really?", MessageButtons::kYesNo, MessageIcon::kQuestion, "Title"),
            Answer::kYes);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "Really?");
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::kYesNo);
  EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::kQuestion);
  EXPECT_EQ(dialogs.messages[0].title, "Title");
}

TEST_F(DialogsTest, AnInputBoxReturnsWhatWasTyped) {
  dialogs.inputs = {"12"};
  EXPECT_EQ(InputBox("width"), "12");
  EXPECT_EQ(dialogs.prompts, std::vector<std::string>{"width"});
}

TEST_F(DialogsTest, AChosenFileFillsNameAndTitle) {
  dialog.Filter = "All|*.*";
  dialog.DefaultExt = "twp";
  dialog.FileName = "before";
  dialogs.files = {"/tmp/Some Folder/label.twp"};
  dialog.ShowOpen();
  EXPECT_EQ(dialog.FileName, "/tmp/Some Folder/label.twp");
  EXPECT_EQ(dialog.FileTitle, "label.twp");
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(dialogs.requests[0].filter, "All|*.*");
  EXPECT_EQ(dialogs.requests[0].default_extension, "twp");
  EXPECT_EQ(dialogs.requests[0].file_name, "before");
}

TEST_F(DialogsTest, ATitleIsTheLastPartAfterEitherSlash) {
  dialogs.files = {"C:\\labels\\one.twp", "plain.twp"};
  dialog.ShowSave();
  EXPECT_EQ(dialog.FileTitle, "one.twp");
  dialog.ShowSave();
  EXPECT_EQ(dialog.FileTitle, "plain.twp");
}

TEST_F(DialogsTest, ACancelledDialogLeavesThePropertiesAlone) {
  dialog.FileName = "before";
  dialog.FileTitle = "title";
  dialog.Color = 7;
  dialog.ShowOpen();
  dialog.ShowSave();
  dialog.ShowColor();
  EXPECT_EQ(dialog.FileName, "before");
  EXPECT_EQ(dialog.FileTitle, "title");
  EXPECT_EQ(dialog.Color, 7);
}

TEST_F(DialogsTest, WithCancelErrorACancelledDialogFaults32755) {
  dialog.CancelError = true;
  dialog.FileName = "before";
  for (void (CommonDialog::*show)() :
       {&CommonDialog::ShowOpen, &CommonDialog::ShowSave, &CommonDialog::ShowColor}) {
    try {
      (dialog.*show)();
      ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.number, 32755);
    }
  }
  EXPECT_EQ(dialog.FileName, "before");
}

TEST_F(DialogsTest, WithCancelErrorAChosenFileIsNoFault) {
  dialog.CancelError = true;
  dialogs.files = {"/a/b.twp"};
  dialog.ShowSave();
  EXPECT_EQ(dialog.FileTitle, "b.twp");
}

TEST_F(DialogsTest, AChosenColourIsStored) {
  dialogs.colors = {0x0000FF};
  dialog.ShowColor();
  EXPECT_EQ(dialog.Color, 0x0000FF);
}

}  // namespace
}  // namespace tagwright
