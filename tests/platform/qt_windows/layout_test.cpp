// What the form file promises: captions, order, alignment, sizes.
#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <algorithm>
#include <set>

#include "platform/qt_windows/window_fixture.h"
#include "qt/controls/control_widgets.h"
#include "qt/controls/units.h"
#include "qt/controls/windows.h"

namespace tagwright {
namespace {

class LayoutTest : public WindowTest {
 protected:
  // All texts that a panel shows.
  std::set<std::string> Texts(const QString& panel) {
    std::set<std::string> texts;
    for (const QLabel* label : Find(panel).findChildren<QLabel*>()) {
      texts.insert(label->text().toStdString());
    }
    for (const QAbstractButton* button : Find(panel).findChildren<QAbstractButton*>()) {
      texts.insert(button->text().toStdString());
    }
    return texts;
  }

  QRect Place(const QString& name) {
    QWidget& widget = Find(name);
    return QRect(widget.mapTo(&Window(), QPoint(0, 0)), widget.size());
  }

  QRect Place(const QWidget& widget) {
    return QRect(widget.mapTo(&Window(), QPoint(0, 0)), widget.size());
  }

  // What a panel shows: captions, fields, lists and buttons, without the parts of these.
  static std::vector<const QWidget*> Parts(const QWidget& panel) {
    std::vector<const QWidget*> parts;
    for (const QWidget* widget : panel.findChildren<QWidget*>()) {
      const bool seen = widget->isVisible() && !widget->size().isEmpty();
      const bool stands =
          widget->property("control").toBool() || widget->property("tone") == "caption";
      if (seen && stands) parts.push_back(widget);
    }
    return parts;
  }

  // The names of what the tab key visits, from the first to the last of the window.
  std::vector<std::string> Chain() {
    std::vector<std::string> names;
    for (QWidget* widget = Window().nextInFocusChain(); widget != &Window();
         widget = widget->nextInFocusChain()) {
      const bool stops = (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
      if (stops && widget->property("control").toBool()) {
        names.push_back(widget->objectName().toStdString());
      }
    }
    return names;
  }
};

struct PanelCase {
  const char* panel;
  std::vector<std::string> captions;
};

const PanelCase kPanels[] = {
    {"picBCode",
     {"Barcode Format", "Barcode Data", "Generate Checksum", "Print Characters on Barcode"}},
    {"picPicture", {"Filename", "Original X", "Original Y", "pixels"}},
    {"picDrawing", {"Line Weight", "Fill Colour", "Outline Colour", "Make Transparent"}},
    {"picText", {"Font", "Size", "Text Color", "Bold", "Italic", "Left", "Right", "Centre"}},
    {"picFields",
     {"Import File Type", "Filename", "Recordset", "Load File", "First Row contains Field Names",
      "Remove Quote Marks"}},
    {"picPrint",
     {"From page", "To Page", "No. Copies", "Print", "Preview", "Serial Numbers",
      "Include Mailshot Data"}},
    {"picProperties",
     {"Layout", "Design new Label", "Width", "Height", "Left Margin", "Top Margin", "No. Across",
      "No. Down", "Vert. Gutter", "Horiz. Gutter"}},
    {"picFunctions", {"Left", "Top", "Width", "Height", "Zoom"}},
};

TEST_F(LayoutTest, EveryPanelHasItsCaptions) {
  for (const PanelCase& expected : kPanels) {
    if (auto* panel = dynamic_cast<PictureBox*>(frmMain.Find(expected.panel))) Front(*panel);
    const std::set<std::string> texts = Texts(expected.panel);
    for (const std::string& caption : expected.captions) {
      EXPECT_TRUE(texts.contains(caption)) << expected.panel << " lacks " << caption;
    }
  }
}

TEST_F(LayoutTest, ToolsAndFlyoutHaveTheirCaptions) {
  const char* const tools[] = {"Select Tool", "Generate Barcode", "Insert Picture",
                               "Text Tool",   "Drawing Options",  "Zoom In",
                               "Zoom Out",    "Import Data"};
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(Find<QAbstractButton>(QString("cmdTools_%1").arg(i)).text(), tools[i]);
  }
  const char* const magnify[] = {"Show All", "Zoom to Height", "Zoom to Width", "View Same Size",
                                 "View All Objects"};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(Find<QAbstractButton>(QString("cmdMagnify_%1").arg(i)).toolTip(), magnify[i]);
  }
  EXPECT_EQ(Find("cmdToBack").toolTip(), "Send to Back");
  EXPECT_EQ(Find("cmdCenterLab").toolTip(), "Align to Centre of Label");
  EXPECT_EQ(Find("cmdToFront").toolTip(), "Bring to Front");
}

TEST_F(LayoutTest, AlignmentButtonsStandInTheProgramsOrderOfIndices) {
  EXPECT_EQ(Find<QAbstractButton>("cmdAlign_0").text(), "Left");
  EXPECT_EQ(Find<QAbstractButton>("cmdAlign_1").text(), "Right");
  EXPECT_EQ(Find<QAbstractButton>("cmdAlign_2").text(), "Centre");
}

TEST_F(LayoutTest, LayoutFieldsCarryTheirIndices) {
  const std::pair<int, const char*> fields[] = {
      {0, "No. Across"},  {1, "No. Down"},   {2, "Label Width"},   {3, "Label Height"},
      {4, "Left Margin"}, {5, "Top Margin"}, {6, "Horiz. Gutter"}, {7, "Vert. Gutter"}};
  for (const auto& [index, name] : fields) {
    EXPECT_EQ(Find(QString("txtLabLayout_%1").arg(index)).accessibleName(), name);
  }
}

TEST_F(LayoutTest, TheTabKeyFollowsTheReadingOrder) {
  const std::vector<std::string> expected = {
      "cboLabelLayout", "cmdDesLabel",    "txtLabLayout_2", "txtLabLayout_4", "txtLabLayout_0",
      "txtLabLayout_6", "txtLabLayout_3", "txtLabLayout_5", "txtLabLayout_1", "txtLabLayout_7"};
  const std::vector<std::string> chain = Chain();
  ASSERT_GE(chain.size(), expected.size());
  EXPECT_EQ(std::vector<std::string>(chain.begin(), chain.begin() + 10), expected);
}

// Every control that the tab key visits comes after those above it and to the left of it, within
// its own block of the window.
TEST_F(LayoutTest, NoBlockIsWalkedBackwards) {
  const std::vector<std::string> chain = Chain();
  const auto position = [&](const std::string& name) {
    return std::find(chain.begin(), chain.end(), name) - chain.begin();
  };
  const std::pair<PictureBox*, std::vector<const char*>> blocks[] = {
      {&frmMain.picProperties,
       {"cboLabelLayout", "cmdDesLabel", "txtLabLayout_2", "txtLabLayout_4", "txtLabLayout_7"}},
      {&frmMain.picText, {"cmdTextColor", "chkBold", "chkItalic", "cmdAlign_0", "cmdAlign_2"}},
      {&frmMain.picBCode, {"cboBCode", "txtBCodeData", "cmdBCode"}},
      {&frmMain.picDrawing, {"cmdLine", "cmdRect", "cmdRoundRect", "cmdEllipse", "cboWeight"}},
      {&frmMain.picPrint, {"cboPrinter", "txtPrintFrom", "txtPrintTo", "txtNoCopies"}},
      {&frmMain.picPrint, {"cmdPrint", "cmdPreview", "cmdSerNo"}},
      {nullptr, {"txtDSize_0", "txtDSize_2", "txtDSize_1", "txtDSize_3", "cboZoom", "chkXHair"}},
      {nullptr,
       {"cmdTools_0", "cmdTools_1", "cmdTools_2", "cmdTools_4", "cmdTools_7", "cmdTools_5",
        "cmdTools_6", "cmdToBack", "cmdToFront", "cmdCenterLab"}},
  };
  for (const auto& [panel, names] : blocks) {
    if (panel) Front(*panel);
    for (std::size_t i = 1; i < names.size(); ++i) {
      const QRect before = Place(names[i - 1]);
      const QRect after = Place(names[i]);
      EXPECT_LT(position(names[i - 1]), position(names[i])) << names[i];
      const bool lower = after.center().y() > before.center().y() + 12;
      EXPECT_TRUE(lower || after.left() > before.left()) << names[i - 1] << " " << names[i];
    }
  }
}

TEST_F(LayoutTest, TheTabOrderOfTheWindowEndsAtTheBoard) {
  const std::vector<std::string> chain = Chain();
  const auto at = [&](const std::string& name) {
    return std::find(chain.begin(), chain.end(), name) - chain.begin();
  };
  EXPECT_LT(at("cmdSpcVert"), at("txtDSize_0"));
  EXPECT_LT(at("chkXHair"), at("cmdTools_0"));
  EXPECT_LT(at("cmdCenterLab"), at("cmdMagnify_0"));
  EXPECT_NE(std::find(chain.begin(), chain.end(), "picBoard"), chain.end());
}

TEST_F(LayoutTest, FieldsStandOnOneGrid) {
  const std::pair<PictureBox*, const char*> first_row[] = {
      {&frmMain.picProperties, "cboLabelLayout"},
      {&frmMain.picText, "cboFont"},
      {&frmMain.picBCode, "cboBCode"},
      {&frmMain.picDrawing, "cmdColor"},
      {&frmMain.picFields, "cboImportType"},
      {&frmMain.picPrint, "cboPrinter"}};
  for (const auto& [panel, name] : first_row) {
    frmMain.cboFont.SetVisible(true);
    Front(*panel);
    EXPECT_NEAR(Place(name).center().y(), Place("txtDSize_0").center().y(), 1) << name;
  }
}

TEST_F(LayoutTest, EveryPanelFitsTheStripOfTheDesign) {
  frmMain.cboFont.SetVisible(true);
  frmMain.cboSize.SetVisible(true);
  auto& panels = Find<QStackedWidget>("panels");
  for (int i = 0; i < panels.count(); ++i) {
    panels.setCurrentIndex(i);
    Settle();
    const QSize needed = panels.widget(i)->minimumSizeHint();
    EXPECT_LE(needed.width(), panels.width()) << panels.widget(i)->objectName().toStdString();
    EXPECT_LE(needed.height(), panels.height()) << panels.widget(i)->objectName().toStdString();
  }
  EXPECT_EQ(frmMain.picFunctions.Height(), Twips(Find("picFunctions").height()));
}

// The narrowest window that is told of: 1024 pixels wide.
TEST_F(LayoutTest, NothingOverlapsInANarrowWindow) {
  frmMain.picFunctions.SetWidth(1024 * kTwipsPerPixel - 240);
  frmMain.cboFont.SetVisible(true);
  frmMain.cboSize.SetVisible(true);
  frmMain.txtBookland.SetVisible(true);
  for (PictureBox* panel :
       {&frmMain.picProperties, &frmMain.picText, &frmMain.picBCode, &frmMain.picDrawing,
        &frmMain.picPicture, &frmMain.picFields, &frmMain.picPrint, &frmMain.picSellAll}) {
    Front(*panel);
    const std::vector<const QWidget*> parts = Parts(Find(ObjectName(*panel)));
    EXPECT_GT(parts.size(), 4U) << panel->Name();
    const QRect strip = Place(ObjectName(*panel));
    for (std::size_t i = 0; i < parts.size(); ++i) {
      const QRect place = Place(*parts[i]);
      const std::string name = panel->Name() + " " + parts[i]->objectName().toStdString();
      EXPECT_TRUE(strip.contains(place)) << name;
      EXPECT_GE(place.width(), parts[i]->minimumWidth()) << name;
      if (parts[i]->property("tone") == "caption") {
        EXPECT_GE(place.width(), parts[i]->sizeHint().width()) << name << " is cut";
      }
      for (std::size_t k = 0; k < i; ++k) {
        EXPECT_FALSE(place.intersects(Place(*parts[k])))
            << name << " lies on " << parts[k]->objectName().toStdString();
      }
    }
  }
}

// Room that is there is used: the lists have the width of the design again.
TEST_F(LayoutTest, ListsHaveTheirWidthInAWideWindow) {
  frmMain.cboFont.SetVisible(true);
  frmMain.cboSize.SetVisible(true);
  const std::pair<PictureBox*, std::vector<std::pair<const char*, int>>> rows[] = {
      {&frmMain.picBCode, {{"cboBCode", 210}, {"txtBCodeData", 210}, {"cboFont", 190}}},
      {&frmMain.picText, {{"cboFont", 190}}}};
  for (const auto& [panel, fields] : rows) {
    Front(*panel);
    for (const auto& [name, width] : fields) EXPECT_EQ(Place(name).width(), width) << name;
  }
}

// Each field of the dialog has its caption at its left, in one column.
TEST_F(LayoutTest, TheSerialDialogsCaptionsStandInOneColumn) {
  Load(frmSerialNumber);
  QWidget& dialog = *WindowOf(frmSerialNumber);
  dialog.show();
  Settle();
  const auto place = [&](const QWidget& widget) {
    return QRect(widget.mapTo(&dialog, QPoint(0, 0)), widget.size());
  };
  int captions = 0;
  for (const QLabel* caption : dialog.findChildren<QLabel*>()) {
    if (!caption->buddy()) continue;
    ++captions;
    const QRect left = place(*caption), field = place(*caption->buddy());
    EXPECT_TRUE(caption->isVisible()) << caption->text().toStdString();
    EXPECT_EQ(left.right(), place(*dialog.findChild<QLabel*>("captionSerPref")).right())
        << caption->text().toStdString();
    EXPECT_NEAR(left.center().y(), field.center().y(), 2) << caption->text().toStdString();
    EXPECT_GT(field.left(), left.right());
    EXPECT_LT(field.left(), left.right() + 12);
  }
  EXPECT_EQ(captions, 6);
}

// A desktop with large print, from before the window is made.
class LargePrint {
 public:
  LargePrint() : before_((Toolkit(), QApplication::font())) {
    QFont font = before_;
    font.setPointSize(13);
    QApplication::setFont(font);
  }
  ~LargePrint() { QApplication::setFont(before_); }

 private:
  QFont before_;
};

class LargePrintTest : private LargePrint, public LayoutTest {};

TEST_F(LargePrintTest, NoCaptionIsCut) {
  frmMain.cboFont.SetVisible(true);
  frmMain.cboSize.SetVisible(true);
  for (PictureBox* panel :
       {&frmMain.picProperties, &frmMain.picText, &frmMain.picBCode, &frmMain.picDrawing,
        &frmMain.picPicture, &frmMain.picFields, &frmMain.picPrint, &frmMain.picSellAll}) {
    Front(*panel);
    QWidget& page = Find(ObjectName(*panel));
    for (const QWidget* widget : page.findChildren<QWidget*>()) {
      const bool caption = widget->property("tone") == "caption" ||
                           qobject_cast<const QCheckBox*>(widget) ||
                           qobject_cast<const QPushButton*>(widget);
      if (!caption || !widget->isVisible()) continue;
      EXPECT_GE(widget->width(), widget->sizeHint().width()) << widget->objectName().toStdString();
      EXPECT_LE(widget->mapTo(&page, widget->rect().topRight()).x(), page.width())
          << widget->objectName().toStdString();
    }
  }
}

// Routines read these numbers, which the form file decides on the screen.
TEST_F(LayoutTest, ToolsStandWhereTheModelHasThem) {
  for (const auto& [index, tool] : frmMain.cmdTools) {
    const QRect place = Find(ObjectName(*tool)).geometry();
    EXPECT_EQ(QRectF(place),
              QRectF(tool->Left() / 15, tool->Top() / 15, tool->Width() / 15, tool->Height() / 15))
        << index;
  }
  const QSize column = Find("picTools").minimumSizeHint();
  EXPECT_EQ(Twips(column.height()), frmMain.picTools.Height());
  EXPECT_EQ(Twips(column.width()), frmMain.picTools.Width());
  const QSize flyout = Find("picMag").minimumSizeHint();
  EXPECT_EQ(Twips(flyout.width()), frmMain.picMag.Width());
  EXPECT_EQ(Twips(flyout.height()), frmMain.picMag.Height());
}

TEST_F(LayoutTest, TheToolsFitTheLowestWindow) {
  constexpr double kLeastHeight = 8250;
  constexpr double kFrameAndMenu = 900;
  const double board =
      kLeastHeight - kFrameAndMenu - 240 - frmMain.picFunctions.Height() - frmMain.sB1.Height();
  EXPECT_LE(frmMain.picTools.Height(), board);
}

}  // namespace
}  // namespace tagwright
