// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>

#include <cstdlib>

namespace {

/// Ends the process when a window has been painted.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QObject* parent) : QObject(parent)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !m_painting) {
            // The other widgets are painted before the event loop goes on.
            m_painting = true;
            QMetaObject::invokeMethod(
                this, [] { std::_Exit(0); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    bool m_painting = false;
};

class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "first_paint.json")

public:
    QObject* create(const QString&, const QString&) override { return new FirstPaint(this); }
};

} // namespace

#include "first_paint.moc"
