#include "app/startup.h"

#include "config/configuration_record.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

#include <memory>

namespace startup {

void setAttributes()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

void useLightPalette()
{
    const std::unique_ptr<QStyle> light(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(light->standardPalette());
}

QString languageCode()
{
    if (config::exists())
        return config::read().language;
    QString firstLanguage = QStringLiteral("EN");
    config::create(firstLanguage);
    return firstLanguage;
}

Translators::Translators(const QString& languageCode)
{
    const auto installApplication = [this](const QString& catalogue) {
        m_application.load(catalogue);
        QCoreApplication::installTranslator(&m_application);
    };
    if (languageCode == QLatin1String("EN")) {
        installApplication(QStringLiteral(":/Demo_EN.qm"));
        // There is no such catalogue: Qt's own texts are English already.
        m_qtBase.load(QStringLiteral("qt_zh_EN.qm"), QStringLiteral(":/"));
    } else if (languageCode == QLatin1String("RU")) {
        installApplication(QStringLiteral(":/Demo_RU.qm"));
        m_qtBase.load(QStringLiteral(":/qtbase_ru.qm"));
    } else if (languageCode == QLatin1String("KO")) {
        installApplication(QStringLiteral(":/Demo_KO.qm"));
        m_qtBase.load(QStringLiteral(":/qtbase_ko.qm"));
    } else {
        m_qtBase.load(QStringLiteral(":/qt_zh_CN.qm"));
    }
    QCoreApplication::installTranslator(&m_qtBase);
}

} // namespace startup
