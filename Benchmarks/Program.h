#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The programs that lie beside this one.
namespace Program {

/// One line that a program prints: a name, then numbers.
struct Line {
    QString name;
    QList<double> numbers;
};

QString path(const QString& name);
/// What a program prints from its start to its end; fatal when it fails.
QList<Line> lines(const QString& name, const QStringList& arguments);

} // namespace Program
