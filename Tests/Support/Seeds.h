#pragma once

#include <QRandomGenerator>
#include <QTest>

/// Rows for a property test: two fixed seeds and a fresh one, which its row name tells.
namespace Seeds {

/// Adds the column "seed".
inline void addRows() {
    QTest::addColumn<quint32>("seed");
    QTest::newRow("fixed seed 1") << quint32(1);
    QTest::newRow("fixed seed 20260311") << quint32(20260311);
    const quint32 fresh = QRandomGenerator::global()->generate();
    QTest::addRow("random seed %u", fresh) << fresh;
}

} // namespace Seeds
