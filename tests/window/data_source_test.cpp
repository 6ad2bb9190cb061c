// A table goes in: a text file through the file dialog, its columns and its count on the panel, the
// running number in its window, and all of it in the saved label.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "window/steps.h"

namespace tagwright::window_test {
namespace {

constexpr std::size_t kRecordSize = 333;
constexpr std::size_t kTextOfRecord = 26;

class DataSourceWindow : public testing::Test {
 protected:
  DataSourceWindow() {
    std::ofstream(data, std::ios::binary)
        << "Name,Town\r\nAda,Leeds\r\nJ\xC3\xB6rg,K\xC3\xB6ln\r\n";
  }

  static void WaitForLabel(const Program& program, const std::string& name,
                           const std::string& text) {
    WaitFor(text + " in " + name, [&] { return Find(program, name, "label").description == text; });
  }

  static std::vector<std::string> ListedFields(const Program& program) {
    std::vector<std::string> rows;
    for (const Spoken& spoken : Everything(program)) {
      if (spoken.role == "list item" && spoken.showing) rows.push_back(spoken.name);
    }
    return rows;
  }

  static void Retype(const Program& program, const std::string& field, const std::string& text) {
    Click(Find(program, field, "text").box);
    Key("ctrl+a");
    Type(text);
    WaitFor(text + " in " + field, [&] { return Find(program, field, "text").text == text; });
  }

  std::string folder = FreshFolder();
  std::string data = folder + "/people.csv";
};

TEST_F(DataSourceWindow, ATextFileShowsItsColumnsAndItsCount) {
  Program program(folder);
  Key("ctrl+i");
  BrowseToData(program, "Comma Separated Text File", data);
  WaitForLabel(program, "Records", "Records: 3");
  EXPECT_EQ(Find(program, "Filename", "label").description, data);
  EXPECT_EQ(ListedFields(program), (std::vector<std::string>{"Name", "Town"}));
  EXPECT_TRUE(Shows(program, "First Row contains Field Names"));
  EXPECT_TRUE(Shows(program, "Remove Quote Marks"));
  EXPECT_FALSE(Shows(program, "Recordset", "label"));
}

TEST_F(DataSourceWindow, ACancelledDialogKeepsTheSource) {
  Program program(folder);
  Key("ctrl+i");
  BrowseToData(program, "Comma Separated Text File", data);
  WaitForLabel(program, "Records", "Records: 3");
  Click(Find(program, "Load File").box);
  WaitForWindow("Open");
  Key("Escape");
  WaitForWindow("Tagwright");
  EXPECT_EQ(Find(program, "Filename", "label").description, data);
  EXPECT_EQ(ListedFields(program), (std::vector<std::string>{"Name", "Town"}));
}

class DatabaseWindow : public DataSourceWindow {
 protected:
  DatabaseWindow() { Shell(TAGWRIGHT_SAMPLE_DATABASE " '" + database + "'"); }

  // As BrowseToData, for a file that is answered with a message.
  static std::string BrowseToRefused(const Program& program, const std::string& path) {
    Click(Find(program, "Load File").box);
    WaitForWindow("Open");
    Type(path);
    Key("Return");
    const std::string said = AnswerMessage(program);
    WaitForWindow("Tagwright");
    return said;
  }

  // Chooses the database and its table of people.
  void OpenPeople(const Program& program) {
    Key("ctrl+i");
    BrowseToData(program, "Microsoft Access 97 Database", database);
    ChooseRow(program, "Recordset", "People");
    WaitForLabel(program, "Records", "Records: 3");
    ASSERT_EQ(ListedFields(program), (std::vector<std::string>{"Number", "Name"}));
  }

  static bool ShowsCount(const Program& program) {
    for (const Spoken& spoken : Everything(program)) {
      if (spoken.name == "Records" && !spoken.description.empty()) return true;
    }
    return false;
  }

  static void ExpectNoSource(const Program& program) {
    WaitFor("the count to go", [&] { return !ShowsCount(program); });
    EXPECT_EQ(ListedFields(program), std::vector<std::string>{});
  }

  std::string database = folder + "/people.mdb";
};

// Nothing of the database that was open is left to print labels from.
TEST_F(DatabaseWindow, AFileThatIsNoDatabaseLeavesNothingOfTheOneBefore) {
  const std::string other = folder + "/other.mdb";
  std::ofstream(other, std::ios::binary) << "GIF89a";
  Program program(folder);
  OpenPeople(program);
  EXPECT_EQ(BrowseToRefused(program, other), "The file " + other + " cannot be read as a database");
  EXPECT_EQ(Find(program, "Filename", "label").description, other);
  ExpectNoSource(program);
  ChooseMenu(program, {"File", "Print"});
  EXPECT_EQ(Find(program, "Labels", "label").description, "Labels: 0");
  StartPrintToPdf(program, folder + "/none.pdf");
  EXPECT_TRUE(AnswerMessage(program).starts_with("No label was printed: "));
  EXPECT_FALSE(std::filesystem::exists(folder + "/none.pdf"));
}

TEST_F(DatabaseWindow, WithoutTheReaderADatabaseIsToldToBeUnreadable) {
  Program program(folder);
  OpenPeople(program);
  std::filesystem::remove(folder + "/tagwright-reader");
  const std::string said = BrowseToRefused(program, database);
  EXPECT_TRUE(said.starts_with("The file " + database + " cannot be read as a database")) << said;
  EXPECT_NE(said.find("does not start: " + folder + "/tagwright-reader"), std::string::npos);
  ExpectNoSource(program);
}

TEST_F(DatabaseWindow, ALabelOpenedWithoutTheReaderSaysSoAndHasNoSource) {
  const std::string saved = folder + "/people.twp";
  Program program(folder);
  OpenPeople(program);
  SaveProjectAs(program, saved);
  ChooseMenu(program, {"File", "New"});
  WaitFor("a new label", [&] { return program.Title().find("[untitled]") != std::string::npos; });
  std::filesystem::remove(folder + "/tagwright-reader");
  ChooseMenu(program, {"File", "Open"});
  WaitForWindow("Open");
  Type(saved);
  Key("Return");
  const std::string said = AnswerMessage(program);
  EXPECT_TRUE(said.starts_with("The file " + database + " cannot be read as a database")) << said;
  WaitForWindow("[people.twp]");
  Key("ctrl+i");
  ExpectNoSource(program);
}

TEST_F(DatabaseWindow, ALinkedTableIsListedAndSaysWhereItLies) {
  Program program(folder);
  OpenPeople(program);
  ChooseRow(program, "Recordset", "Far");
  EXPECT_EQ(AnswerMessage(program), "The table Far lies in another file");
  WaitForLabel(program, "Records", "Records: 0");
  EXPECT_EQ(ListedFields(program), std::vector<std::string>{});
}

// A label with a text source, saved and opened again, has its columns and rows, and prints them.
TEST_F(DataSourceWindow, ASavedLabelBringsItsTextFileBack) {
  const std::string saved = folder + "/people.twp", pdf = folder + "/people.pdf";
  Program program(folder);
  Key("ctrl+i");
  BrowseToData(program, "Comma Separated Text File", data);
  WaitForLabel(program, "Records", "Records: 3");
  Click(Find(program, "First Row contains Field Names").box);  // a change, which can be saved
  Click(Find(program, "First Row contains Field Names").box);
  WaitFor("the entry to save", [&] {
    ChooseMenu(program, {"File"});
    const bool enabled = Find(program, "Save As", "menu item").enabled;
    Key("Escape");
    return enabled;
  });
  SaveProjectAs(program, saved);
  ChooseMenu(program, {"File", "New"});
  WaitFor("a new label", [&] { return program.Title().find("[untitled]") != std::string::npos; });
  OpenProject(program, saved);
  Key("ctrl+i");
  WaitForLabel(program, "Records", "Records: 3");
  EXPECT_EQ(ListedFields(program), (std::vector<std::string>{"Name", "Town"}));
  ChooseMenu(program, {"File", "Print"});
  EXPECT_EQ(Find(program, "Labels", "label").description, "Labels: 2");
  EXPECT_TRUE(Shows(program, "Include Mailshot Data, beginning with the second row"));
  StartPrintToPdf(program, pdf);
  WaitForWindow("Tagwright");
  WaitFor("the sheet", [&] { return std::filesystem::exists(pdf); });
}

TEST_F(DataSourceWindow, TheRunningNumberIsChangedSavedAndFoundInTheLabel) {
  const std::string saved = folder + "/numbered.twp";
  Program program(folder);
  Key("ctrl+i");
  BrowseToData(program, "Comma Separated Text File", data);
  WaitForLabel(program, "Records", "Records: 3");

  ChooseMenu(program, {"File", "Serial Number Setup"});
  WaitForWindow("Serial Numbers");
  EXPECT_EQ(Find(program, "Incrementing Number", "text").text, "1001");
  Retype(program, "Prefix", "AB");
  Retype(program, "Incrementing Number", "77");
  Key("Return");
  WaitForWindow("Tagwright");

  ChooseMenu(program, {"File", "Serial Number Setup"});
  WaitForWindow("Serial Numbers");
  EXPECT_EQ(Find(program, "Prefix", "text").text, "AB");
  EXPECT_EQ(Find(program, "Incrementing Number", "text").text, "77");
  Retype(program, "Prefix", "dropped");
  Key("Escape");
  WaitForWindow("Tagwright");

  WaitFor("the entry to save", [&] {
    ChooseMenu(program, {"File"});
    const bool enabled = Find(program, "Save As", "menu item").enabled;
    Key("Escape");
    return enabled;
  });
  SaveProjectAs(program, saved);
  const std::string bytes = Contents(saved);
  ASSERT_EQ(bytes.size(), 2 * kRecordSize);
  EXPECT_EQ(bytes.substr(kTextOfRecord, 4), "AB  ");
  EXPECT_EQ(bytes.substr(kRecordSize + kTextOfRecord, data.size()), data);
}

TEST_F(DataSourceWindow, ReturnLeavesAListOfTheWindowOfNumbersAndSavesFromAField) {
  Program program(folder);
  ChooseMenu(program, {"File", "Serial Number Setup"});
  WaitForWindow("Serial Numbers");
  Click(Find(program, "Incrementing Number", "text").box);
  Key("Tab");  // to the incrementation
  Key("ctrl+a");
  Type("5");
  Key("Return");  // on to the box below, which a blank turns over
  Key("space");
  WaitFor("the fields to be disabled",
          [&] { return !Find(program, "Barcode Width", "text").enabled; });
  Click(Find(program, "Prefix", "text").box);
  Key("Return");
  WaitForWindow("Tagwright");
  ChooseMenu(program, {"File", "Serial Number Setup"});
  WaitForWindow("Serial Numbers");
  EXPECT_FALSE(Find(program, "Print as Barcode").checked);
  EXPECT_EQ(FindCombo(program, "Incrementation").name, "5");
}

TEST_F(DataSourceWindow, TheBarcodesFieldsFollowTheirBox) {
  Program program(folder);
  ChooseMenu(program, {"File", "Serial Number Setup"});
  WaitForWindow("Serial Numbers");
  EXPECT_TRUE(Find(program, "Barcode Width", "text").enabled);
  Click(Find(program, "Print as Barcode").box);
  WaitFor("the fields to be disabled",
          [&] { return !Find(program, "Barcode Width", "text").enabled; });
  Key("alt+c");
  WaitForWindow("Tagwright");
}

}  // namespace
}  // namespace tagwright::window_test
