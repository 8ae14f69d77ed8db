#include "Platform/QtProcesses.h"

#include <QProcess>

#include <csignal>

namespace Platform {

std::optional<int> QtProcesses::run(const QString& executable, const QStringList& arguments) {
    QProcess process;
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setChildProcessModifier([] {
        // What this process blocks for its own sake is not the child's business.
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
    });
    process.start(executable, arguments);
    constexpr int withoutLimit = -1;
    if (!process.waitForFinished(withoutLimit) || process.exitStatus() != QProcess::NormalExit)
        return std::nullopt;
    return process.exitCode();
}

} // namespace Platform
