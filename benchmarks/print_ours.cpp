// One print job through the program as a user runs it: its window, its panel, its Print button.
//
//   print_ours ROWS.csv PAGES.pdf
//
// Prints the seconds from the press of the button to the closed file, those of the processor, the
// kilobytes of the idle window and the most that the job took.
#include <stdlib.h>

#include <QCoreApplication>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "document/objects.h"
#include "document/source_state.h"
#include "forms/frmMain.h"
#include "platform/controls/text_controls.h"
#include "platform/services/application.h"
#include "platform/services/desktop.h"
#include "platform/services/dialogs.h"
#include "sheet_rows.h"
#include "shell/startup.h"

namespace {

using namespace tagwright;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kSettled = 500;  // milliseconds after which a window that nobody uses is at rest
constexpr int kCommaText = 1;

// Names the files that a user would choose.
class Chosen : public DialogService {
 public:
  Chosen(std::string rows, std::string pages) : rows_(std::move(rows)), pages_(std::move(pages)) {}
  Answer MessageBox(const std::string& text, MessageButtons, MessageIcon,
                    const std::string&) override {
    std::cerr << text << '\n';
    return Answer::kOk;
  }
  std::string InputBox(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
  std::optional<std::string> OpenFile(const FileDialogRequest&) override { return rows_; }
  std::optional<std::string> SaveFile(const FileDialogRequest&) override { return pages_; }
  std::optional<std::int32_t> ChooseColor(std::int32_t) override { return std::nullopt; }

 private:
  std::string rows_, pages_;
};

void ChooseRow(ComboBox& list, const std::string& row) {
  for (int i = 0; i < list.ListCount(); ++i) {
    if (list.List(i) == row) return list.SetListIndex(i);
  }
  std::cerr << row << " is not in the list\n";
  std::exit(EXIT_FAILURE);
}

ObjectRecord& AddField(std::int16_t column, double top, double height) {
  GrowObjects();
  ObjectRecord& field = ObjectAt(ObjectUB);
  field = {};
  field.ObjType = kDataField;
  field.Text = "Column";
  field.Param = column;
  field.Left = static_cast<float>(bench::kLeft);
  field.Top = static_cast<float>(top);
  field.Width = bench::kSymbolWidth;
  field.Height = height;
  field.FontName = bench::kFamily;
  field.FontSize = bench::kPoints;
  return field;
}

void DesignLabel() {
  ChooseRow(frmMain.cboLabelLayout, "A4 14 per sheet");
  frmMain.cboImportType.SetListIndex(kCommaText);
  for (std::int16_t line = 0; line < bench::kLines; ++line) {
    AddField(line, bench::kFirstLine + bench::kLineStep * line, bench::kLineStep);
  }
  AddField(bench::kLines, bench::kSymbolTop, bench::kSymbolHeight).FillColor =
      100 + bench::kCode128B;
}

// A table of many rows proposes more pages than the box holds.
void FillPrintPanel() {
  constexpr int kCells = bench::kAcross * bench::kDown;
  frmMain.mnuFilePrint.Press();
  frmMain.txtPrintTo.SetText(std::to_string(RecordCount / kCells + 1));
  ChooseRow(frmMain.cboPrinter, "Print to PDF");
}

void PrintOnce() {
  const long idle = bench::Resident();
  bench::ForgetPeak();
  const double used = bench::ProcessorSeconds();
  const auto start = Clock::now();
  frmMain.cmdPrint.Press();
  const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
  std::printf("%.4f %.4f %ld %ld\n", seconds, bench::ProcessorSeconds() - used, idle,
              bench::Peak());
  QCoreApplication::exit(0);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: print_ours ROWS.csv PAGES.pdf\n";
    return EXIT_FAILURE;
  }
  Application application(argc, argv);
  Chosen dialogs(argv[1], argv[2]);
  SetDialogs(&dialogs);
  std::string folder = (fs::temp_directory_path() / "tagwright-bench-XXXXXX").string();
  if (!mkdtemp(folder.data())) return EXIT_FAILURE;
  SetExecutableFolder(folder);
  StartProgram();
  DesignLabel();
  FillPrintPanel();
  QTimer::singleShot(kSettled, PrintOnce);
  const int code = application.Run();
  fs::remove_all(folder);
  return code;
}
