#include "Program.h"

#include <QCoreApplication>
#include <QProcess>

QString Program::path(const QString& name) {
    return QCoreApplication::applicationDirPath() + u'/' + name;
}

QList<Program::Line> Program::lines(const QString& name, const QStringList& arguments) {
    constexpr int patience = 120'000;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(path(name), arguments);
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        qFatal("%s %s failed", qPrintable(name), qPrintable(arguments.join(u' ')));
    }
    QList<Line> lines;
    const QStringList texts = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& text : texts) {
        const QStringList words = text.split(u' ');
        Line line{.name = words.first(), .numbers = {}};
        for (const QString& word : words.sliced(1)) {
            line.numbers.append(word.toDouble());
        }
        lines.append(line);
    }
    return lines;
}
