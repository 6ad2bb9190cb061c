#include "qt/forms/form_files.h"

#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QString>
#include <QToolButton>
#include <QVariant>
#include <QWidget>

#include "qt/controls/windows.h"
#include "qt/look/icons.h"
#include "ui_frmAbout.h"
#include "ui_frmMain.h"
#include "ui_frmSerialNumber.h"

namespace tagwright {
namespace {

template <class FormFile, class Window>
std::unique_ptr<QWidget> Build(QWidget* parent) {
  auto window = std::make_unique<Window>(parent);
  FormFile().setupUi(window.get());
  return window;
}

struct KnownForm {
  const char* name;
  std::unique_ptr<QWidget> (*build)(QWidget* parent);
};

constexpr KnownForm kForms[] = {
    {"frmMain", Build<Ui::frmMain, QMainWindow>},
    {"frmAbout", Build<Ui::frmAbout, QDialog>},
    {"frmSerialNumber", Build<Ui::frmSerialNumber, QDialog>},
};

// Icons stand in the form file by name, so that they take the colours of the theme.
void SetIcons(QWidget& window) {
  for (QToolButton* button : window.findChildren<QToolButton*>()) {
    button->setIcon(ThemedIcon(button->property("iconName").toString()));
  }
  for (QLabel* label : window.findChildren<QLabel*>()) {
    const QString name = label->property("iconName").toString();
    if (name.isEmpty()) continue;
    label->setPixmap(ThemedIcon(name).pixmap(label->minimumSize(), label->devicePixelRatioF()));
  }
}

}  // namespace

std::unique_ptr<QWidget> BuildWindow(const Form& form, QWidget* parent) {
  for (const KnownForm& known : kForms) {
    if (form.Name() != known.name) continue;
    std::unique_ptr<QWidget> window = known.build(parent);
    window->setWindowIcon(ThemedIcon("application"));
    SetIcons(*window);
    return window;
  }
  return nullptr;
}

std::unique_ptr<WindowService> MakeWindowService() { return MakeWindowService(BuildWindow); }

}  // namespace tagwright
