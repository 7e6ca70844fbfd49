// SPDX-License-Identifier: MIT
// A plugin that Qt loads into any program: waits for the first window, writes to standard output
// what there is to see, and asks the program to end. So the program needs to know of no test.
#include <QAction>
#include <QApplication>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPalette>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int lookEvery = 20;      // ms
constexpr int looksInVain = 1'000; // then there is no window

QJsonObject menuBarOf(const QMainWindow& window)
{
    QJsonArray menus;
    bool allHaveIcons = true;
    for (const QAction* menu : window.menuBar()->actions()) {
        QJsonArray texts{menu->text()};
        for (const QAction* entry : menu->menu()->actions()) {
            texts.append(entry->text());
            allHaveIcons = allHaveIcons && !entry->icon().pixmap(16, 16).isNull();
        }
        menus.append(texts);
    }
    return {{"menus", menus}, {"icons", allHaveIcons}};
}

QJsonObject lookAt(const QWidget& window)
{
    QJsonObject seen{{"class", window.metaObject()->className()},
                     {"title", window.windowTitle()},
                     {"fullScreen", window.isFullScreen()},
                     {"maximized", window.isMaximized()},
                     {"background", window.palette().color(QPalette::Window).name()},
                     {"text", window.palette().color(QPalette::WindowText).name()}};
    if (const auto* status = window.findChild<QLabel*>("label"))
        seen["status"] = status->text();
    if (const auto* main = qobject_cast<const QMainWindow*>(&window))
        seen["menuBar"] = menuBarOf(*main);
    return seen;
}

class Onlooker : public QObject
{
public:
    explicit Onlooker(QObject* parent) : QObject(parent)
    {
        connect(&m_looks, &QTimer::timeout, this, [this] {
            if (tell() || ++m_count == looksInVain)
                QCoreApplication::quit();
        });
        m_looks.start(lookEvery);
    }

private:
    static bool tell()
    {
        QJsonArray windows;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible())
                windows.append(lookAt(*window));
        }
        if (windows.isEmpty())
            return false;
        const QJsonObject seen{
            {"windows", windows},
            {"scales", QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling)},
            {"sharpIcons", QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps)},
            {"qtText", QCoreApplication::translate("QPlatformTheme", "Cancel")}};
        std::fputs(QJsonDocument(seen).toJson(QJsonDocument::Compact).constData(), stdout);
        std::fflush(stdout);
        return true;
    }

    QTimer m_looks;
    int m_count = 0;
};

class OnlookerPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "onlooker.json")

public:
    /// "dark": on a desktop with a dark palette.
    QObject* create(const QString&, const QString& desktop) override
    {
        if (desktop == QLatin1String("dark")) {
            QPalette dark(QColor(30, 30, 30));
            for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
                dark.setColor(role, Qt::white);
            QGuiApplication::setPalette(dark);
        }
        return new Onlooker(this);
    }
};

} // namespace

#include "onlooker.moc"
