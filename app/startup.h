// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTranslator>

/// What happens between main() and the first window.
namespace startup {

/// High-DPI scaling and icons; to be called before the application object exists.
void setAttributes();

/// Light colours for every window, whatever the desktop has: the forms have light backgrounds of
/// their own, on which a dark desktop's white texts would be lost. Needs the application object.
void useLightPalette();

/// The language code of this run, from the configuration record. On the very first start the record
/// does not exist yet: it is made with "EN", and "EN" is the answer even when it cannot be written.
/// (The main window's own fallback writes "CH"; the two defaults differ on purpose.)
QString languageCode();

/// The catalogues of one run: they are installed on construction and speak while the object lives,
/// so main() holds it until the process ends. Needs the application object and resources::load().
///
/// Codes are compared case-sensitively; one that there is not leaves the program's own texts in
/// their source language, Chinese. A catalogue that cannot be loaded is installed empty: that is
/// how English gets Qt's built-in texts.
class Translators
{
public:
    explicit Translators(const QString& languageCode);

private:
    QTranslator m_application;
    QTranslator m_qtBase;
};

} // namespace startup
