#include "Platform/Linux/Toolkit/LinuxWorkspace.h"

#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace tocca::platform::linux {

bool LinuxWorkspace::openUrl(const std::string& url)
{
    const QUrl parsed(QString::fromStdString(url), QUrl::StrictMode);
    // A scheme also keeps the argument from being taken for an option.
    if (!parsed.isValid() || parsed.scheme().isEmpty()) {
        return false;
    }
    const QString program = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (program.isEmpty()) {
        return false;
    }
    QProcess opener;
    opener.setProgram(program);
    opener.setArguments({parsed.toString(QUrl::FullyEncoded)});
    // What the opened program prints is none of this program's lines.
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    return opener.startDetached();
}

} // namespace tocca::platform::linux
