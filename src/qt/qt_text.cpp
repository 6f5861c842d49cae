// Conversions between the station's cp1252 texts and colours and Qt's types.
#include "qt/qt_text.h"

#include "base/cp1252.h"

namespace tesk {

QString ToQString(std::string_view cp1252) {
  return QString::fromStdString(Cp1252ToUtf8(cp1252));
}

std::string FromQString(const QString& s) {
  return Utf8ToCp1252(s.toStdString());
}

QString ToQStringLines(std::string_view cp1252) {
  QString s = ToQString(cp1252);
  s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  s.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return s;
}

QColor ToQColor(Color c) {
  const Color rgb = ResolveSystemColor(c);
  return QColor(RedOf(rgb), GreenOf(rgb), BlueOf(rgb));
}

Color FromQColor(const QColor& c) {
  return RGB(c.red(), c.green(), c.blue());
}

}  // namespace tesk
