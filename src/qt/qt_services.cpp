// Sound, printer and clipboard of the Qt platform.
#include "qt/qt_services.h"

#include <QClipboard>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QTextDocument>
#ifdef TESK_HAVE_QT_PRINTSUPPORT
#include <QPrinter>
#endif

#include "qt/qt_text.h"

namespace tesk {

QtSound::QtSound() {
  // The first player found, in the order of the sound servers a desktop runs today.
  const std::pair<const char*, QStringList> players[] = {
      {"pw-play", {}}, {"paplay", {}}, {"aplay", {QStringLiteral("-q")}}};
  for (const auto& [name, arguments] : players) {
    const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name));
    if (path.isEmpty()) continue;
    m_player = path;
    m_playerArguments = arguments;
    break;
  }
}

QtSound::QtSound(const QString& player, const QStringList& arguments)
    : m_player(player), m_playerArguments(arguments) {}

QtSound::~QtSound() {
  stop();
}

void QtSound::stop() {
  if (!m_process) return;
  if (m_process->state() != QProcess::NotRunning) {
    m_process->kill();
    m_process->waitForFinished(500);
  }
  m_process.reset();
}

void QtSound::play(const std::string& path) {
  stop();
  if (path.empty() || m_player.isEmpty()) return;
  const QString file = ToQString(path);
  if (!QFileInfo(file).isFile()) return;
  m_process = std::make_unique<QProcess>();
  // A player's complaints (no sound server, a busy device) are no business of the operator's.
  m_process->setStandardOutputFile(QProcess::nullDevice());
  m_process->setStandardErrorFile(QProcess::nullDevice());
  m_process->start(m_player, m_playerArguments + QStringList{file});
}

namespace {

// The text as pages in the fixed font of 9 points, on any paged device (printer or PDF).
void PrintPages(const std::string& text, QPagedPaintDevice& device) {
  QTextDocument doc;
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSize(9);
  doc.setDefaultFont(font);
  doc.setPlainText(ToQStringLines(text));
  doc.print(&device);
}

bool HasGui() {
  return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

}  // namespace

bool QtPrinter::printText(const std::string& text) {
  if (!m_outputFile.empty()) {
    if (!HasGui()) return false;  // laying out pages needs the fonts of a windowed program
    QPdfWriter pdf(ToQString(m_outputFile));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    PrintPages(text, pdf);
    return QFileInfo::exists(ToQString(m_outputFile));
  }
#ifdef TESK_HAVE_QT_PRINTSUPPORT
  if (HasGui()) {
    QPrinter printer(QPrinter::HighResolution);
    if (!printer.isValid()) return false;
    PrintPages(text, printer);
    return true;
  }
#endif
  // The print command takes plain text on its input and sends it to the default printer.
  QProcess lp;
  lp.start(QStringLiteral("lp"), {QStringLiteral("-s")});
  if (!lp.waitForStarted(5000)) return false;
  lp.write(ToQStringLines(text).toUtf8());
  lp.closeWriteChannel();
  return lp.waitForFinished(10000) && lp.exitStatus() == QProcess::NormalExit && lp.exitCode() == 0;
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
