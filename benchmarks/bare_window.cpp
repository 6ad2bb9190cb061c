// The least that a desktop program of this kind can be: a window with a menu bar and forty widgets.
// What it costs to start is the floor that our own start is measured against.
#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>

namespace {

void FillMenu(QMenuBar& bar) {
  QMenu* menu = bar.addMenu("&File");
  for (const char* caption : {"&New", "&Open", "&Save", "E&xit"}) menu->addAction(caption);
}

void FillGrid(QWidget& page) {
  auto* grid = new QGridLayout(&page);
  for (int i = 0; i < 20; ++i) {
    const QString name = QString::number(i);
    auto* button = new QPushButton("Button " + name);
    button->setObjectName("button" + name);
    grid->addWidget(button, i % 5, i / 5 * 2);
    grid->addWidget(new QLineEdit("Field " + name), i % 5, i / 5 * 2 + 1);
  }
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle("Bare window");
  FillMenu(*window.menuBar());
  auto* page = new QWidget;
  FillGrid(*page);
  window.setCentralWidget(page);
  window.resize(1000, 700);
  window.show();
  return QApplication::exec();
}
