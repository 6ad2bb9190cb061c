#include "print/print_fixture.h"

#include <QGuiApplication>

#include "forms/frmAbout.h"
#include "forms/frmMain.h"
#include "forms/frmSerialNumber.h"
#include "platform/controls/windows.h"
#include "platform/services/desktop.h"
#include "qt/services/paint_services.h"
#include "shell/startup.h"

namespace tagwright {
namespace {

// The toolkit, started once for all tests of the program; never destroyed, since fonts look back at
// it until the very end.
void StartToolkit() {
  static int argc = 1;
  static char name[] = "test";
  static char* argv[] = {name, nullptr};
  static const QGuiApplication& application = *new QGuiApplication(argc, argv);
  (void)application;
}

void ChooseRow(ComboBox& list, const std::string& row) {
  for (int i = 0; i < list.ListCount(); ++i) {
    if (list.List(i) == row) return list.SetListIndex(i);
  }
  ADD_FAILURE() << row << " is not in the list";
}

}  // namespace

PrintTest::PrintTest() {
  StartToolkit();
  InstallPaintServices();
  StartProgram();
}

PrintTest::~PrintTest() {
  WireForm<FrmMain> = nullptr;
  WireForm<FrmAbout> = nullptr;
  WireForm<FrmSerialNumber> = nullptr;
  ResetPrinter();
  SetFonts(nullptr);
  SetPictureReader(nullptr);
}

void PrintTest::ChooseLayout(const std::string& title) { ChooseRow(frmMain.cboLabelLayout, title); }

void PrintTest::OpenCommaText(const std::string& path) {
  constexpr int kCommaText = 1;
  dialogs.files.push_back(path);
  frmMain.cboImportType.SetListIndex(kCommaText);
}

void PrintTest::Print(const std::string& printer) {
  ChooseRow(frmMain.cboPrinter, printer);
  frmMain.cmdPrint.Press();
}

void PrintTest::PrintToPdf(const std::string& path) {
  dialogs.files.push_back(path);
  Print("Print to PDF");
}

ObjectRecord& PrintTest::Add(std::int16_t kind, double left, double top, double width,
                             double height) {
  GrowObjects();
  ObjectRecord& object = ObjectAt(ObjectUB);
  object = {};
  object.ObjType = kind;
  object.Left = static_cast<float>(left);
  object.Top = static_cast<float>(top);
  object.Width = width;
  object.Height = height;
  object.FontName = "Arial";
  object.FontSize = 10;
  return object;
}

ObjectRecord& PrintTest::AddField(std::int16_t column, double left, double top, double width,
                                  double points) {
  ObjectRecord& field = Add(kDataField, left, top, width, points / 2);
  field.Text = "Column";
  field.Param = column;
  field.FontSize = points;
  return field;
}

void PrintTest::AddBarcodeField(std::int16_t column, std::int16_t format, double left, double top,
                                double width, double height) {
  constexpr int kFirstFormat = 100;
  ObjectRecord& field = AddField(column, left, top, width, 10);
  field.Height = height;
  field.FillColor = kFirstFormat + format;
}

}  // namespace tagwright
