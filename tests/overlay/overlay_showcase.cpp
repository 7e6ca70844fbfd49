// SPDX-License-Identifier: MIT
/// The two widgets of the overlay room side by side over a made-up picture, to be tried by hand or
/// photographed:
///     overlay_showcase
///     overlay_showcase --screenshot picture.png

#include "tests/overlay/overlay_host.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCommandLineParser>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <array>

namespace {

class Showcase : public QWidget
{
public:
    Showcase()
    {
        setWindowTitle(QStringLiteral("Overlay showcase"));
        auto* column = new QVBoxLayout(this);
        auto* buttons = new QHBoxLayout;
        column->addLayout(buttons);
        column->addWidget(&m_host, 1);
        column->addWidget(&m_status);

        constexpr std::array<const char*, 5> modes{"Select", "Point", "Line", "Rectangle",
                                                   "Circle"};
        int mode = 0;
        for (const char* text : modes) {
            auto* button = new QPushButton(QString::fromLatin1(text), this);
            button->setCheckable(true);
            m_modes.addButton(button, ++mode);
            buttons->addWidget(button);
        }
        m_modes.button(1)->setChecked(true);
        connect(&m_modes, QOverload<int>::of(&QButtonGroup::buttonClicked), m_host.label,
                &MyLabel::setToolMode);
        addButton(*buttons, QStringLiteral("Delete"), &MyLabel::deleteSelected);
        addButton(*buttons, QStringLiteral("Clear"), &MyLabel::clearTools);

        connect(m_host.label, &MyLabel::Point_XY, this, [this](int x, int y) {
            m_status.setText(QStringLiteral("X: %1  Y: %2").arg(x).arg(y));
        });
        m_host.pixmapRatio = 0;
        placeTools();
        resize(780, 900);
    }

private:
    void addButton(QHBoxLayout& row, const QString& text, void (MyLabel::*slot)())
    {
        auto* button = new QPushButton(text, this);
        connect(button, &QPushButton::clicked, m_host.label, slot);
        row.addWidget(button);
    }

    void placeTools()
    {
        MyLabel& label = *m_host.label;
        const QColor red(255, 0, 0);
        const QColor blue(80, 160, 255);
        label.pointList = {{QStringLiteral("P0"), 85, 110, 9, red},
                           {QStringLiteral("P1"), 200, 60, 9, blue},
                           {QStringLiteral("P2"), 30, 290, 9, red}};
        label.lineList = {{QStringLiteral("L0"), 20, 60, 110, 40, red},
                          {QStringLiteral("L1"), 130, 140, 225, 300, blue}};
        label.rectList = {{QStringLiteral("R0"), 30, 190, 100, 260, red},
                          {QStringLiteral("R1"), 225, 120, 150, 80, red}};
        label.circleList = {{QStringLiteral("C0"), 170, 230, 190, 230, 20, red},
                            {QStringLiteral("C1"), 70, 80, 60, 80, 10, blue}};
        label.currentType = QStringLiteral("R");
        label.selectedIndex = 0;
        label.markerA = {20, 20};
        label.markerB = {171, 229};
        label.markerC = {120, 160};
        m_host.bar->startValue = 20;
        m_host.bar->endValue = 215;
    }

    testing::OverlayHost m_host;
    QLabel m_status;
    QButtonGroup m_modes;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication application(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Save a picture of the window and leave."),
                                        QStringLiteral("file"));
    options.addOption(screenshot);
    options.process(application);

    Showcase showcase;
    showcase.show();
    if (!options.isSet(screenshot))
        return QApplication::exec();
    bool saved = false;
    QTimer::singleShot(0, &showcase, [&] {
        saved = showcase.grab().save(options.value(screenshot));
        QApplication::quit();
    });
    QApplication::exec();
    return saved ? 0 : 1;
}
