// The main job through the real window: a label and its table go in, sheets of labels come out.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "window/steps.h"

namespace tagwright::window_test {
namespace {

namespace fs = std::filesystem;

class PrintWindow : public testing::Test {
 protected:
  static std::string Texts(const std::string& pdf) {
    return Shell("pdftotext -layout '" + pdf + "' -");
  }
  static int Pages(const std::string& pdf) {
    return std::stoi(Shell("pdfinfo '" + pdf + "' | sed -n 's/^Pages: *//p'"));
  }

  std::string folder = FreshFolder();
  std::string pdf = folder + "/labels.pdf";
};

TEST_F(PrintWindow, TheAddressLabelComesOutOncePerRow) {
  Program program(folder);
  OpenProject(program, SampleLabel("Address label.twp"));
  Key("ctrl+i");
  BrowseToData(program, "Comma Separated Text File", SampleLabel("addresses.csv"));
  StartPrintToPdf(program, pdf);
  WaitForWindow("Tagwright");
  WaitFor("the sheet", [&] { return fs::exists(pdf); });
  EXPECT_EQ(Pages(pdf), 1);
  const std::string texts = Texts(pdf);
  std::istringstream table(
      Shell("iconv -f CP1252 -t UTF-8 '" + SampleLabel("addresses.csv") + "'"));
  std::string line;
  std::getline(table, line);  // titles
  int rows = 0;
  for (; std::getline(table, line); ++rows) {
    const std::string street = line.substr(line.find(',', line.find(',') + 1) + 1);
    EXPECT_NE(texts.find(street.substr(0, street.find(','))), std::string::npos) << line;
  }
  EXPECT_EQ(rows, 14);
  std::size_t labels = 0;
  for (std::size_t at = 0; (at = texts.find("DELIVER TO", at)) != std::string::npos; ++at) ++labels;
  EXPECT_EQ(labels, 14u);
}

TEST_F(PrintWindow, ACancelledDialogPrintsNothingAndTheNextPressAsksAgain) {
  Program program(folder);
  OpenProject(program, SampleLabel("Product label.twp"));
  ChooseMenu(program, {"File", "Print"});
  ChooseRow(program, "Printer", "Print to PDF");
  Click(Find(program, "Print", "push button").box);
  WaitForWindow("Save");
  Key("Escape");
  WaitForWindow("Tagwright");
  StartPrintToPdf(program, pdf);
  WaitForWindow("Tagwright");
  WaitFor("the sheet", [&] { return fs::exists(pdf); });
  EXPECT_NE(Texts(pdf).find("Jar B-1014"), std::string::npos);
  EXPECT_EQ(Texts(pdf).find("Jar B-1015"), std::string::npos);
}

TEST_F(PrintWindow, TheNextSheetIsSavedBesideTheLastOne) {
  fs::create_directory(folder + "/sheets");
  Program program(folder);
  for (const std::string& named : {folder + "/sheets/first.pdf", std::string("second.pdf")}) {
    StartPrintToPdf(program, named);
    const std::string sheet = folder + "/sheets/" + fs::path(named).filename().string();
    WaitFor(sheet, [&] { return fs::exists(sheet); });
    WaitForWindow("Tagwright");
  }
}

// The tick for merging goes with the data that it was for.
TEST_F(PrintWindow, ANewLabelAfterAMergePrintsItsSheet) {
  const std::string second = folder + "/second.pdf";
  Program program(folder);
  OpenProject(program, SampleLabel("Address label.twp"));
  StartPrintToPdf(program, pdf);
  WaitForWindow("Tagwright");
  WaitFor("the sheet", [&] { return fs::exists(pdf); });
  EXPECT_EQ(Pages(pdf), 1);
  ChooseMenu(program, {"File", "New"});
  WaitFor("a new label", [&] { return program.Title().find("[untitled]") != std::string::npos; });
  ChooseMenu(program, {"File", "Print"});
  EXPECT_EQ(Find(program, "Labels", "label").description, "Labels: 14");
  EXPECT_FALSE(Shows(program, "Include Mailshot Data, beginning with the second row"));
  StartPrintToPdf(program, second);
  WaitForWindow("Tagwright");
  WaitFor("the sheet", [&] { return fs::exists(second); });
  EXPECT_EQ(Pages(second), 1);
}

TEST_F(PrintWindow, AJobWithoutALabelSaysWhy) {
  const std::string rows = folder + "/titles.csv";
  std::ofstream(rows) << "Name,Town\n";
  Program program(folder);
  Key("ctrl+i");
  BrowseToData(program, "Comma Separated Text File", rows);
  StartPrintToPdf(program, pdf);
  EXPECT_EQ(AnswerMessage(program),
            "No label was printed: no rows are left in the data file " + rows);
  WaitForWindow("Tagwright");
  EXPECT_FALSE(fs::exists(pdf));
}

// The sheet is there before the job has quite ended: who presses then is not told to press again.
TEST_F(PrintWindow, APressRightAfterAShortJobCounts) {
  Program program(folder);
  OpenProject(program, SampleLabel("Product label.twp"));
  ChooseMenu(program, {"File", "Print"});
  const Box numbers = Find(program, "Serial Numbers", "push button").box;
  StartPrintToPdf(program, pdf);
  WaitFor("the sheet", [&] { return fs::exists(pdf); });
  Click(numbers);
  WaitForWindow("Serial Numbers");
  Key("Escape");
  WaitForWindow("Tagwright");
}

// A job that takes its time: its window shows the pages done, and Escape in it ends the job. What
// has been fed stands.
TEST_F(PrintWindow, ALongJobIsCancelledAndItsPagesStand) {
  constexpr int kRows = 300'000;
  const std::string rows = folder + "/rows.csv";
  std::ofstream table(rows);
  table << "Name,Company,Street,City,Country\n";
  for (int row = 0; row < kRows; ++row) table << "Row " << row << ",b,c,d,e\n";
  table.close();

  Program program(folder);
  OpenProject(program, SampleLabel("Address label.twp"));
  Key("ctrl+i");
  BrowseToData(program, "Comma Separated Text File", rows);
  ChooseMenu(program, {"File", "Print"});
  Click(Find(program, "To Page", "text").box);
  Key("ctrl+a");
  Type("30000");
  ChooseRow(program, "Printer", "Print to PDF");
  Click(Find(program, "Print", "push button").box);
  WaitForWindow("Save");
  Type(pdf);
  Key("Return");
  WaitForWindow("Printing");
  const auto first = Pixels(program.Frame());
  WaitFor("pages that are done", [&] { return Pixels(program.Frame()) != first; });
  Key("Escape");
  WaitForWindow("Tagwright");
  WaitFor("the sheets", [&] { return fs::exists(pdf); });
  EXPECT_GE(Pages(pdf), 1);
  EXPECT_LT(Pages(pdf), kRows / 14);
  Key("ctrl+q");
  // The label has been given other data. With the program go all windows: none is active then.
  Click(Find(program, "No", "push button").box);
  EXPECT_EQ(program.WaitForExit(), 0);
}

}  // namespace
}  // namespace tagwright::window_test
