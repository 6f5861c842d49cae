// Sound, printer and clipboard of the Qt platform.
#include "platform/qt/qt_services.h"

#include <QClipboard>
#include <QGuiApplication>

#include "platform/qt/qt_text.h"

namespace tesk {

void QtSound::play(const std::string&) {
  // Sound files are not played yet; an alarm shows in the Monitor and the note window anyway.
}

bool QtPrinter::printText(const std::string&) {
  return false;
}

void QtClipboard::setText(const std::string& text) {
  if (m_desktop) {
    QGuiApplication::clipboard()->setText(ToQString(text));
  } else {
    m_text = text;
  }
}

std::string QtClipboard::text() {
  return m_desktop ? FromQString(QGuiApplication::clipboard()->text()) : m_text;
}

void QtClipboard::clear() {
  if (m_desktop) {
    QGuiApplication::clipboard()->clear();
  } else {
    m_text.clear();
  }
}

}  // namespace tesk
