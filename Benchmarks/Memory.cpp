#include "Memory.h"

#include <QFile>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

double entry(const QString& process, const QByteArray& name) {
    constexpr double kilobyte = 1024;
    QFile file(u"/proc/%1/smaps_rollup"_s.arg(process));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray text = file.readAll();
    const QByteArray key = '\n' + name + ':';
    const qsizetype at = text.indexOf(key);
    return at < 0 ? 0 : std::strtod(text.constData() + at + key.size(), nullptr) * kilobyte;
}

} // namespace

double Memory::ofProcess(const QString& process) {
    return entry(process, "Pss");
}

double Memory::writtenBy(const QString& process) {
    return entry(process, "Pss_Dirty");
}
