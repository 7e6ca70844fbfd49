// SPDX-License-Identifier: MIT
#pragma once

#include "app/seting.h"
#include "tests/support/dialogs.h"
#include "tests/support/parts.h"

#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

/// What a user does in the settings.
namespace testing {

/// Activates an entry with the keyboard, as a user does.
inline void activate(seting& dialog, int index)
{
    auto* combo = part<QComboBox>(&dialog, "comboBox");
    combo->setFocus();
    const int steps = index - combo->currentIndex();
    for (int i = 0; i < qAbs(steps); ++i)
        QTest::keyClick(combo, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
    QCOMPARE(combo->currentIndex(), index);
}

inline void press(seting& dialog, const char* button)
{
    QTest::mouseClick(part<QPushButton>(&dialog, button), Qt::LeftButton);
}

/// Presses Confirm and takes in the restart notice; its text.
inline QString confirm(seting& dialog)
{
    QString text;
    Answer<QMessageBox> notice([&text](QMessageBox& box) {
        text = box.windowTitle() + QLatin1Char('|') + box.text();
        QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        QCOMPARE(box.icon(), QMessageBox::Information);
        const bool isAlone = !box.parentWidget()->isVisible();
        box.button(QMessageBox::Ok)->click();
        QVERIFY(isAlone); // a box that is not answered waits for ever
    });
    press(dialog, "pushButton_2");
    return text;
}

} // namespace testing
