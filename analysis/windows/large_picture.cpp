// SPDX-License-Identifier: MIT
#include "analysis/windows/large_picture.h"

#include "analysis/windows/picture_view.h"
#include "analysis/windows/reading_set.h"
#include "analysis/windows/tool_commands.h"
#include "overlay/my_label.h"

#include "ui_analysis_widget.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace analysis {
namespace {

/// Listens to the wheel over the picture of the analysis window. Without Ctrl it does what it did.
class PictureWheel : public QObject
{
public:
    PictureWheel(ToolCommands& commands, MyLabel& label)
        : QObject(&commands), m_viewed(commands.viewed()), m_label(label)
    {
        label.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel)
            return QObject::eventFilter(watched, event);
        const auto* wheel = static_cast<QWheelEvent*>(event);
        if (!(wheel->modifiers() & Qt::ControlModifier))
            return QObject::eventFilter(watched, event);
        const int steps = m_wheel.take(*wheel);
        if (steps != 0) {
            const QPoint place = wheel->position().toPoint();
            const overlay::Box pixel =
                overlay::toImage(m_label, {place.x(), place.y(), 0, 0}, {120, 160, 0, 0});
            BesideWindow::open<LargePicture>(m_viewed).view().zoomBy(steps, {pixel.x, pixel.y});
        }
        event->accept();
        return true;
    }

private:
    ViewedPhotograph& m_viewed;
    const MyLabel& m_label;
    WheelSteps m_wheel;
};

} // namespace

LargePicture::LargePicture(ViewedPhotograph& photograph)
    : BesideWindow(photograph, tr("大图")), m_view(new PictureView), m_readOut(new QLabel),
      m_zoom(new QLabel), m_set(new ReadingSet(photograph, this))
{
    m_view->setObjectName(QStringLiteral("view"));
    m_view->setAccessibleName(tr("大图"));
    m_view->setToolTip(tr("Ctrl+滚轮或 + 和 - 缩放，0 显示全图，拖动或方向键移动，Ctrl+C 复制"));
    m_readOut->setObjectName(QStringLiteral("readOut"));
    m_zoom->setObjectName(QStringLiteral("zoom"));
    m_zoom->setAccessibleName(tr("放大倍率"));
    auto* below = new QHBoxLayout;
    below->addWidget(m_readOut, 1);
    below->addWidget(m_zoom);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_view, 1);
    layout->addLayout(below);
    layout->addWidget(m_set);

    connect(m_view, &PictureView::pointed, this, [this](const std::optional<QPoint>& pixel) {
        m_pixel = pixel;
        showReadOut();
    });
    connect(m_view, &PictureView::zoomed, this, [this] {
        m_zoom->setText(QStringLiteral("%1 %").arg(std::lround(100 * m_view->zoom().factor())));
    });
    connect(m_set, &ReadingSet::chosen, this, &LargePicture::showReadOut);
    connect(&photograph, &ViewedPhotograph::recoloured, this, [this] {
        if (isVisible())
            refresh();
    });
    m_view->setFocus();
}

void LargePicture::addTo(ToolCommands& commands, const Ui::Analysis_Widget& form)
{
    commands.add({ToolCommands::Group::Looking,
                  tr("大图"),
                  [&commands] { BesideWindow::open<LargePicture>(commands.viewed()); },
                  {},
                  ToolCommands::Focus::Window,
                  ToolCommands::Menus::Picture});
    new PictureWheel(commands, *form.label); // belongs to the commands
}

void LargePicture::refresh()
{
    const overlay::Spots& spots = viewed().photograph();
    m_view->show({viewed().colours(), viewed().tools(), spots});
    m_set->refresh();
    showReadOut();
}

void LargePicture::showReadOut()
{
    m_readOut->setText(m_pixel ? m_set->texts().readOut(*m_pixel) : QString());
}

void LargePicture::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal)
        m_view->zoomBy(1);
    else if (event->key() == Qt::Key_Minus)
        m_view->zoomBy(-1);
    else if (event->key() == Qt::Key_0)
        m_view->fit();
    else
        BesideWindow::keyPressEvent(event);
}

void LargePicture::copy() const
{
    const QImage seen = m_view->seen();
    if (!seen.isNull())
        QGuiApplication::clipboard()->setImage(seen);
}

} // namespace analysis
