#include "qt/services/locale.h"

#include <QLocale>
#include <QRegularExpression>
#include <cstdlib>

#include "platform/text/text.h"

namespace tagwright {
namespace {

const QString kSymbol = QStringLiteral("¤");

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string Category(const char* name) {
  for (const char* variable : {"LC_ALL", name, "LANG"}) {
    if (const std::string value = Variable(variable); !value.empty()) return value;
  }
  return "";
}

// "de_DE.UTF-8@euro" without what follows language and territory.
std::string Plain(const std::string& name) { return name.substr(0, name.find_first_of(".@")); }

bool IsBuiltIn(const std::string& name) {
  const std::string plain = Plain(name);
  return plain.empty() || plain == "C" || plain == "POSIX";
}

QLocale ToolkitLocale(const std::string& name) {
  return QLocale(QString::fromStdString(Plain(name)));
}

void TakeNumbers(const QLocale& from, UserLocale& locale) {
  locale.decimal = from.decimalPoint().toStdString();
  locale.group = from.groupSeparator().toStdString();
}

// A sample amount shows the form: what stands around its digit.
std::string CurrencyForm(const QLocale& from, double amount) {
  QString form = from.toCurrencyString(amount, kSymbol, 0);
  form.replace(from.toString(std::abs(amount), 'f', 0), "n");
  form.remove(QRegularExpression("[\\x{200e}\\x{200f}]"));  // marks of writing direction
  return form.toStdString();
}

int CurrencyDigits(const QLocale& from) {
  const QString sample = from.toCurrencyString(1.0, kSymbol);
  const int point = static_cast<int>(sample.indexOf(from.decimalPoint()));
  if (point < 0) return 0;
  int digits = 0;
  while (point + 1 + digits < sample.size() && sample[point + 1 + digits].isDigit()) ++digits;
  return digits;
}

void TakeCurrency(const QLocale& from, UserLocale& locale) {
  locale.currency = from.currencySymbol().toStdString();
  locale.currency_positive = CurrencyForm(from, 1);
  locale.currency_negative = CurrencyForm(from, -1);
  locale.currency_digits = CurrencyDigits(from);
}

// A year of two digits is written in full.
std::string ShortDate(const QLocale& from) {
  QString pattern = from.dateFormat(QLocale::ShortFormat);
  pattern.replace(QRegularExpression("y+"), "yyyy");
  return pattern.toStdString();
}

// A time's form with its seconds. The toolkit's pattern has them only together with the zone, its
// "t" or "tttt" with its brackets, which goes; its "AP" or "Ap" is our "tt", and without that its h
// counts all 24. In newer tables of languages a narrow blank stands before "Ap", which no code page
// has.
std::string Time(const QLocale& from) {
  static const QRegularExpression kZone(R"([ (\[,]*t+[ )\]]*)");
  static const QChar kNarrowBlank(0x202f);
  static const QRegularExpression kHalf("[Aa][Pp]?");
  QStringList parts = from.timeFormat(QLocale::LongFormat).split('\'');  // every other one quoted
  bool twelve = false;
  for (qsizetype i = 0; i < parts.size(); i += 2) {
    parts[i].replace(kNarrowBlank, ' ');
    parts[i].remove(kZone);
    twelve = twelve || parts[i].contains(kHalf);
    parts[i].replace(kHalf, "tt");
  }
  for (qsizetype i = 0; !twelve && i < parts.size(); i += 2) parts[i].replace('h', 'H');
  return parts.join('\'').trimmed().toStdString();
}

void TakeTimes(const QLocale& from, UserLocale& locale) {
  locale.short_date = ShortDate(from);
  locale.time = Time(from);
  locale.before_noon = from.amText().toStdString();
  locale.after_noon = from.pmText().toStdString();
}

}  // namespace

LocaleNames UserLocaleNames() {
  return {.numeric = Category("LC_NUMERIC"),
          .monetary = Category("LC_MONETARY"),
          .time = Category("LC_TIME"),
          .language = Category("LC_CTYPE")};
}

UserLocale LocaleOf(const LocaleNames& names) {
  UserLocale locale;
  if (!IsBuiltIn(names.numeric)) TakeNumbers(ToolkitLocale(names.numeric), locale);
  if (!IsBuiltIn(names.monetary)) TakeCurrency(ToolkitLocale(names.monetary), locale);
  if (!IsBuiltIn(names.time)) TakeTimes(ToolkitLocale(names.time), locale);
  if (!IsBuiltIn(names.language)) locale.code_page = CodePageOfLanguage(names.language);
  return locale;
}

}  // namespace tagwright
