// What becomes of a person's files: what could not be saved, names that differ only in case, and
// settings that a full disk has cut short. Root writes wherever it may, so what cannot be written
// here is what nobody could.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "window/steps.h"

namespace tagwright::window_test {
namespace {

namespace fs = std::filesystem;

constexpr int kSmallestHeight = 8250 / 15;  // twips to logical pixels

class FilesWindow : public testing::Test {
 protected:
  static void WaitForNote(const Program& program, const std::string& text) {
    WaitFor("\"" + text + "\" in the status bar",
            [&] { return Find(program, "Notes", "label").description == text; });
  }

  std::string folder = FreshFolder();
};

// The folder of the label is gone before the second save.
TEST_F(FilesWindow, WhatCouldNotBeSavedIsSaidAndAskedForBeforeTheProgramGoes) {
  const std::string label = folder + "/labels/Label.twp";
  fs::create_directory(folder + "/labels");
  Program program(folder);
  ChooseRow(program, "Layout", "A4 21 per sheet");
  Key("ctrl+s");
  WaitForWindow("Save");
  Type(label);
  Key("Return");
  WaitForWindow("[" + label);
  WaitFor("the label on disk", [&] { return fs::exists(label); });

  fs::remove_all(folder + "/labels");
  ChooseRow(program, "Layout", "A4 24 per sheet");
  Key("ctrl+s");
  WaitForNote(program, "Not saved: Path/File access error");
  Key("ctrl+q");
  AnswerMessage(program, "Yes");
  EXPECT_TRUE(program.Running()) << "nothing has been saved yet";

  fs::create_directory(folder + "/labels");
  Key("ctrl+s");
  WaitForNote(program, "");
  EXPECT_TRUE(fs::exists(label));
  EXPECT_EQ(Leave(program), 0);
}

// As a full disk has left it: nothing, the fonts alone, all but the window's size.
TEST_F(FilesWindow, AShortSettingsFileStillShowsTheWindow) {
  const std::string settings = folder + "/progsettings.twd";
  {
    Program program(folder);
    EXPECT_EQ(Leave(program), 0);
  }
  const std::string whole = Contents(settings);
  for (const std::size_t length : {0, 58, 1096}) {
    std::ofstream(settings, std::ios::binary) << whole.substr(0, length);
    Program program(folder);  // waits for its window
    WaitFor("the floor", [&] { return program.Frame().height >= kSmallestHeight; });
    EXPECT_GT(program.Frame().width, kSmallestHeight) << length;
    EXPECT_EQ(Leave(program), 0);
  }
}

TEST_F(FilesWindow, NamesThatDifferOnlyInCaseAreTwoFiles) {
  const std::string capital = folder + "/Label.twp", small = folder + "/label.twp";
  Program program(folder);
  OpenProject(program, SampleLabel("Address label.twp"));
  SaveProjectAs(program, capital);
  OpenProject(program, SampleLabel("Shelf label.twp"));
  SaveProjectAs(program, small);
  EXPECT_EQ(Contents(capital), Contents(SampleLabel("Address label.twp")));
  EXPECT_EQ(Contents(small), Contents(SampleLabel("Shelf label.twp")));
}

TEST_F(FilesWindow, ARecentFileKeepsItsNameAndDialogsOpenBesideIt) {
  const std::string labels = folder + "/My Labels", first = labels + "/Salt & Pepper.twp";
  fs::create_directory(labels);
  fs::copy_file(SampleLabel("Shelf label.twp"), labels + "/Second.twp");
  {
    Program program(folder);
    OpenProject(program, SampleLabel("Address label.twp"));
    SaveProjectAs(program, first);
    EXPECT_EQ(Leave(program), 0);
  }
  Program program(folder);
  ChooseMenu(program, {"File", RecentName(first)});
  WaitForWindow("[Salt & Pepper.twp]");
  ChooseMenu(program, {"File", "Open"});
  WaitForWindow("Open");
  Type("Second.twp");
  Key("Return");
  WaitForWindow("[Second.twp]");
}

}  // namespace
}  // namespace tagwright::window_test
