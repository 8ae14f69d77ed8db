#pragma once

#include "Support/WindowWorld.h"

#include <QGuiApplication>
#include <QTest>

/// The start of a test of the real window, without a display.
template <typename Test, typename Application = QGuiApplication>
int runWindowTest(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("TZ", "UTC");
    const Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
