// Programs, addresses and program "windows" through QProcess, QDesktopServices and /proc.
#include "qt/qt_shell.h"

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDesktopServices>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "base/text.h"
#include "qt/qt_text.h"

namespace tesk {

namespace {

constexpr int kFileNotFound = 53;  // the number a failed program start reports

std::string ReadFirstLine(const std::filesystem::path& p) {
  std::ifstream in(p);
  std::string line;
  std::getline(in, line);
  return line;
}

bool NameMatches(const std::string& comm, const std::string& title) {
  // The kernel keeps 15 characters of a program's name.
  const std::string want = LCase(Left(title, 15));
  std::string have = LCase(comm);
  if (have == want) return true;
  const std::size_t dot = have.rfind('.');
  return dot != std::string::npos && dot > 0 && have.substr(0, dot) == LCase(title);
}

}  // namespace

int QtShell::run(const std::string& commandLine, const std::string& workingDir) {
  QStringList args = QProcess::splitCommand(ToQString(commandLine));
  if (args.isEmpty()) return kFileNotFound;
  const QString program = args.takeFirst();
  const bool started = QProcess::startDetached(program, args, ToQString(workingDir));
  return started ? 0 : kFileNotFound;
}

int QtShell::openUrl(const std::string& url) {
  const QUrl address = QUrl::fromUserInput(ToQString(url));
  if (!address.isValid()) return 2;
  // QDesktopServices needs the windowed application; the headless program asks xdg-open.
  if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
    return QDesktopServices::openUrl(address) ? 0 : 2;
  }
  return QProcess::startDetached(QStringLiteral("xdg-open"), {address.toString()}) ? 0 : 2;
}

int QtShell::openMail(const std::string& url) {
  // The desktop's mail hand-off, windowed or not: xdg-email knows the user's mail program;
  // where it is missing, xdg-open still hands a mailto: address to whatever takes it.
  QString program = QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
  if (program.isEmpty()) program = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
  if (program.isEmpty()) return kFileNotFound;
  return QProcess::startDetached(program, {ToQString(url)}) ? 0 : kFileNotFound;
}

long QtShell::FindProcess(const std::string& title, const std::string& procRoot) {
  if (title.empty()) return 0;
  std::error_code ec;
  const uid_t me = getuid();
  const long self = static_cast<long>(getpid());
  for (const auto& entry : std::filesystem::directory_iterator(procRoot, ec)) {
    const std::string name = entry.path().filename().string();
    if (name.empty() || name.find_first_not_of("0123456789") != std::string::npos) continue;
    const long pid = std::strtol(name.c_str(), nullptr, 10);
    struct stat st {};
    if (pid == self || ::stat(entry.path().c_str(), &st) != 0 || st.st_uid != me) continue;
    if (NameMatches(ReadFirstLine(entry.path() / "comm"), title)) return pid;
  }
  return 0;
}

long QtShell::findProgramWindow(const std::string& title) {
  return FindProcess(title);
}

void QtShell::closeProgramWindow(long handle) {
  if (handle > 0) ::kill(static_cast<pid_t>(handle), SIGTERM);
}

}  // namespace tesk
