#include "qt/printing/file_spool.h"

#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QString>
#include <optional>
#include <string>

#include "platform/controls/windows.h"
#include "platform/faults/fault.h"
#include "platform/services/dialog_folders.h"
#include "platform/services/dialogs.h"

namespace tagwright {
namespace {

std::string AskForFile() {
  static const std::string kFilter = "PDF files (*.pdf)|*.pdf";
  ModalOpens();
  const std::optional<std::string> path = Dialogs().SaveFile({kFilter, "pdf", ""});
  if (!path) RaiseFault(kDialogCancelled);
  RememberFile(kFilter, *path);
  return *path;
}

QPageLayout WholePage() {
  QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF());
  layout.setMode(QPageLayout::FullPageMode);
  return layout;
}

// Aside first, so that a job that fails or is dropped leaves a former file of that name alone.
class FileSpool : public Spool {
 public:
  explicit FileSpool(const std::string& path) : path_(path), file_(QString::fromStdString(path)) {
    if (!file_.open(QIODevice::WriteOnly)) Refuse(kFileAccess);
    writer_.emplace(&file_);
    writer_->setResolution(kUnitsPerInch);
    writer_->setPageLayout(WholePage());
    writer_->setCreator(QStringLiteral("Tagwright"));
    writer_->setTitle(QStringLiteral("Labels"));
  }
  QPagedPaintDevice& Device() override { return *writer_; }
  void Send() override {
    writer_.reset();
    if (!file_.commit()) Refuse(kDeviceFault);
  }
  void Drop(QPainter& painter) override {
    file_.cancelWriting();
    painter.end();
  }
  bool Failed() const override { return file_.error() != QFileDevice::NoError; }

 private:
  [[noreturn]] void Refuse(int fault) const {
    RaiseFault(fault, "The file " + path_ +
                          " cannot be written: " + file_.errorString().toStdString() + ".");
  }

  std::string path_;
  QSaveFile file_;
  std::optional<QPdfWriter> writer_;
};

}  // namespace

std::unique_ptr<Spool> OpenFileSpool() { return std::make_unique<FileSpool>(AskForFile()); }

}  // namespace tagwright
