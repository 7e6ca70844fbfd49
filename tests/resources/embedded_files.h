// SPDX-License-Identifier: MIT
#pragma once

#include "config/language.h"
#include "tests/support/folder.h"

#include <QtTest>

/// The files in the program, and what their tests share.
namespace testing {

/// What the languages say there, where they say anything.
inline QStringList textsOf(QString config::Language::*fact)
{
    QStringList texts;
    for (const config::Language& language : config::languages()) {
        if (!(language.*fact).isEmpty())
            texts.append(language.*fact);
    }
    return texts;
}

/// All but Qt's English catalogue, which there is not.
inline const QStringList catalogues =
    textsOf(&config::Language::catalogue) + textsOf(&config::Language::qtCatalogue).filter(":/");
inline const QStringList sounds = textsOf(&config::Language::sound).replaceInStrings("qrc:", ":");
inline const QStringList icons = {
    ":/photo/connect.png", ":/photo/Disconnect.png", ":/photo/setting.png", ":/photo/colse.png",
    ":/photo/doc.png",     ":/photo/camaer.png",     ":/photo/stop.png",    ":/photo/save.png",
    ":/photo/reroad.png",  ":/photo/list1.png",      ":/photo/list2.png",   ":/photo/folder.png",
    ":/photo/Poin.png",    ":/photo/Line.png",       ":/photo/Rect.png",    ":/photo/Ellipse.png",
    ":/photo/Corsor.png",  ":/photo/Delete.png",     ":/photo/Clear.png",   ":/photo/Color.png",
    ":/photo/arro.png",
};

/// A row for each path, named by it.
inline void addRows(const QStringList& paths)
{
    QTest::addColumn<QString>("path");
    for (const QString& path : paths)
        QTest::newRow(qUtf8Printable(path)) << path;
}

} // namespace testing
