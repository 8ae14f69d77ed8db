// The least that an application with a status item can be: beside it stands the memory of Kelvane without its window.

#include <QApplication>
#include <QSystemTrayIcon>
#include <QTimer>

using namespace std::chrono_literals;

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QPixmap picture(22, 22);
    picture.fill(Qt::black);
    QSystemTrayIcon item((QIcon(picture)));
    item.show();
    QTimer timer;
    timer.setTimerType(Qt::CoarseTimer);
    timer.start(10s);
    return QApplication::exec();
}
