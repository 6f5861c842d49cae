// Conversions between the station's data and Qt's: cp1252 byte strings to QString and back, the
// station's 0x00BBGGRR colours to QColor, and the line breaks of its texts (CR LF, lone CR) to
// the single newline that Qt's widgets expect.
#pragma once

#include <QColor>
#include <QString>
#include <string>
#include <string_view>

#include "base/color.h"

namespace tesk {

QString ToQString(std::string_view cp1252);
std::string FromQString(const QString& s);
// As ToQString, with CR LF and a lone CR turned into "\n" (message texts, labels).
QString ToQStringLines(std::string_view cp1252);

// System colour codes (high bit set) are resolved first.
QColor ToQColor(Color c);
Color FromQColor(const QColor& c);

}  // namespace tesk
