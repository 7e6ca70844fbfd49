// SPDX-License-Identifier: MIT
#include "app/startup.h"

#include "config/configuration_record.h"
#include "config/language.h"

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
    const config::Language& language = config::languageOf(languageCode);
    if (!language.catalogue.isEmpty()) {
        m_application.load(language.catalogue);
        QCoreApplication::installTranslator(&m_application);
    }
    m_qtBase.load(language.qtCatalogue, language.qtFolder);
    QCoreApplication::installTranslator(&m_qtBase);
}

} // namespace startup
