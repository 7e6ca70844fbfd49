// SPDX-License-Identifier: MIT
#include "analysis/windows/magnifier.h"

#include "analysis/windows/magnified_pixels.h"
#include "analysis/windows/picture_keys.h"
#include "analysis/windows/reading_set.h"
#include "analysis/windows/tool_commands.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace analysis {

Magnifier::Magnifier(ViewedPhotograph& photograph)
    : BesideWindow(photograph, tr("放大镜")), m_pixels(new MagnifiedPixels), m_readOut(new QLabel),
      m_size(new QLabel), m_frozen(new QCheckBox(tr("定格(空格键)"))),
      m_set(new ReadingSet(photograph, this))
{
    m_pixels->setObjectName(QStringLiteral("pixels"));
    m_pixels->setAccessibleName(tr("放大镜"));
    m_pixels->setToolTip(tr("滚轮或 + 和 - 缩放，定格后用方向键移动，Ctrl+C 复制数值"));
    m_readOut->setObjectName(QStringLiteral("readOut"));
    m_size->setObjectName(QStringLiteral("size"));
    m_size->setAccessibleName(tr("像素数"));
    m_frozen->setObjectName(QStringLiteral("frozen"));
    m_frozen->setFocusPolicy(Qt::NoFocus); // the keys stay those of the pixels
    auto* below = new QHBoxLayout;
    below->addWidget(m_readOut, 1);
    below->addWidget(m_size);
    below->addSpacing(12);
    below->addWidget(m_frozen);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_pixels, 1);
    layout->addLayout(below);
    layout->addWidget(m_set);

    m_part.moveTo(photograph.pointedAt());
    connect(&photograph, &ViewedPhotograph::pointed, this, [this](int x, int y) {
        if (!m_frozen->isChecked())
            moveTo({x, y});
    });
    connect(&photograph, &ViewedPhotograph::recoloured, this, [this] {
        if (isVisible())
            refresh();
    });
    connect(m_set, &ReadingSet::chosen, this, &Magnifier::refresh);
    m_pixels->setFocus();
}

Magnifier* Magnifier::openOne(const ToolCommands& commands)
{
    return commands.window().findChild<Magnifier*>(QString(), Qt::FindDirectChildrenOnly);
}

void Magnifier::addTo(ToolCommands& commands)
{
    QAction* open = commands.add({ToolCommands::Group::Looking,
                                  tr("放大镜"),
                                  [&commands] {
                                      if (Magnifier* magnifier = openOne(commands))
                                          magnifier->close();
                                      else
                                          BesideWindow::open<Magnifier>(commands.viewed());
                                  },
                                  {QKeySequence(Qt::Key_F8)},
                                  ToolCommands::Focus::Window,
                                  ToolCommands::Menus::Picture});
    open->setCheckable(true);
    connect(open, &QAction::triggered, open, [&commands, open] {
        if (const Magnifier* magnifier = openOne(commands))
            connect(magnifier, &QObject::destroyed, open, [open] { open->setChecked(false); });
    });
    commands.add({ToolCommands::Group::Looking,
                  tr("定格放大镜"),
                  [&commands] {
                      if (const Magnifier* magnifier = openOne(commands))
                          magnifier->m_frozen->toggle();
                  },
                  {QKeySequence::fromString(QStringLiteral("Shift+F8"))},
                  ToolCommands::Focus::Window,
                  ToolCommands::Menus::Picture,
                  [&commands] {
                      return openOne(commands) != nullptr;
                  }});
}

void Magnifier::refresh()
{
    m_set->refresh();
    m_longestText = m_set->texts().longest();
    showPart();
}

void Magnifier::showPart()
{
    const ReadingTexts texts = m_set->texts();
    const QImage colours = viewed().colours();
    const QRect pixels = m_part.pixels();
    const QRect inside = m_part.pixelsInside();
    MagnifiedPixels::Content content{m_part.size(), {}, m_longestText};
    content.cells.reserve(std::size_t(pixels.width()) * std::size_t(pixels.height()));
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            if (inside.contains(x, y))
                content.cells.push_back({colours.pixelColor(x, y), texts.at(x, y)});
            else
                content.cells.push_back({});
        }
    }
    m_pixels->show(content);
    m_readOut->setText(texts.readOut(m_part.centre()));
    m_size->setText(QStringLiteral("%1 × %1").arg(m_part.size()));
    viewed().mark(*this, {{inside}});
}

void Magnifier::moveTo(const QPoint& pixel)
{
    m_part.moveTo(pixel);
    if (isVisible())
        showPart();
}

void Magnifier::grow(int steps)
{
    m_part.growBy(steps);
    showPart();
}

void Magnifier::wheelEvent(QWheelEvent* event)
{
    grow(-m_wheel.take(*event));
    event->accept();
}

bool Magnifier::moveByKey(const QKeyEvent& event)
{
    const std::optional<QPoint> way = wayOfArrow(event);
    if (!way || !m_frozen->isChecked())
        return false;
    moveTo(m_part.centre() + *way);
    return true;
}

void Magnifier::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        m_frozen->toggle();
    else if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal)
        grow(-1);
    else if (event->key() == Qt::Key_Minus)
        grow(1);
    else if (event->key() == Qt::Key_F8)
        close();
    else if (!moveByKey(*event))
        BesideWindow::keyPressEvent(event);
}

void Magnifier::copy() const
{
    QGuiApplication::clipboard()->setText(m_set->texts().matrix(m_part.pixelsInside()));
}

} // namespace analysis
