// Records ten seconds and saves, over and over, and says after each save how many seconds are in the file by now.

#include "DockCore/Services.h"
#include "DockCore/UsageStore.h"
#include "Platform/SystemServices.h"

#include <QDateTime>
#include <QFile>

#include <cstdio>

int main(int, char** argv) {
    Platform::SystemServices system;
    const DockCore::ServicesScope scope(system.platform());
    DockCore::UsageStore usage(QFile::decodeName(argv[1]));
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QString mail = QStringLiteral("com.example.Mail");
    // Three months of many applications, so that a save takes its time.
    for (int day = 1; day <= 60; ++day)
        for (int application = 0; application < 40; ++application)
            usage.addSeconds(1, QStringLiteral("com.example.application-%1").arg(application), std::nullopt,
                             now.addDays(-day));
    double sum = usage.totals(DockCore::UsageWindow::month, now).value(mail).seconds;
    for (;;) {
        usage.addSeconds(10, mail, QStringLiteral("Mail"), now);
        usage.save();
        sum += 10;
        std::printf("%.0f\n", sum);
        std::fflush(stdout);
    }
}
