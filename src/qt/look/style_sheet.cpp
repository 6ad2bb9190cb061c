#include "qt/look/style_sheet.h"

#include <QByteArray>
#include <QColor>
#include <QFile>
#include <utility>

#include "qt/look/drawings.h"

// Resources of a static library are linked only when somebody asks for them; the macro must stand
// outside every namespace.
static void LinkStyle() { Q_INIT_RESOURCE(style); }

namespace tagwright {
namespace {

QByteArray Template() {
  LinkStyle();
  QFile file(QStringLiteral(":/look/style.qss"));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

QString StyleSheetOf(const Theme& theme) {
  const QColor faded = FadedText(theme);
  const std::pair<const char*, QString> colours[] = {
      {"window", theme.window.name()},
      {"card", theme.card.name()},
      {"border", theme.border.name()},
      {"field_rim", theme.field_rim.name()},
      {"field", theme.field.name()},
      {"hover", theme.hover.name()},
      {"pressed", theme.pressed.name()},
      {"text", theme.text.name()},
      {"muted", theme.muted.name()},
      {"accent", theme.accent.name()},
      {"on_accent", theme.on_accent.name()},
      {"soft", theme.soft.name()},
      {"thumb", theme.field_rim.name()},
      {"faded", faded.name(QColor::HexArgb)},
      {"tone", theme.dark ? "dark" : "light"},
      {"tick", theme.dark ? "check-mark-ink" : "check-mark"},
  };
  LinkDrawings();  // which the sheet names
  QString sheet = QString::fromLatin1(Template());
  for (const auto& [name, colour] : colours) sheet.replace(QString("%%1%").arg(name), colour);
  return sheet;
}

}  // namespace tagwright
