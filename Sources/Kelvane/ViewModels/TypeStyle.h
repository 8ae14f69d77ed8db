#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Kelvane {

/// One style of text: its size, weight, tracking and line, in the user's family and as large as the user wants text.
/// Main thread only.
class TypeStyle : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int size MEMBER m_size NOTIFY changed REQUIRED)
    Q_PROPERTY(int line MEMBER m_line NOTIFY changed REQUIRED)
    Q_PROPERTY(int weight MEMBER m_weight NOTIFY changed)
    Q_PROPERTY(qreal tracking MEMBER m_tracking NOTIFY changed)
    Q_PROPERTY(QFont font READ font NOTIFY changed)
    Q_PROPERTY(qreal lineHeight READ lineHeight NOTIFY changed)

public:
    explicit TypeStyle(QObject* parent = nullptr);

    QFont font() const;
    qreal lineHeight() const;

Q_SIGNALS:
    void changed();

private:
    int m_size = 0;
    int m_line = 0;
    int m_weight = QFont::Normal;
    qreal m_tracking = 0;
};

} // namespace Kelvane
