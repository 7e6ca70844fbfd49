// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/magnified_pixels.h"
#include "analysis/windows/magnifier.h"
#include "tests/analysis/windows/looking_test.h"

#include <QCheckBox>
#include <QLabel>

namespace testing {

using analysis::MagnifiedPixels;
using analysis::Magnifier;

/// The magnifier beside a picture, by mouse and keyboard.
class MagnifierFixture : public LookingTest
{
    Q_OBJECT

protected:
    void open()
    {
        beginOn(slope());
        press(Qt::Key_F8);
        QVERIFY(magnifier());
        QVERIFY(QTest::qWaitForWindowExposed(magnifier()));
    }
    Magnifier* magnifier() const { return window->findChild<Magnifier*>(); }
    MagnifiedPixels& pixels() const { return *part<MagnifiedPixels>(magnifier(), "pixels"); }
    QString readOutOfMagnifier() const { return part<QLabel>(magnifier(), "readOut")->text(); }
    bool isFrozen() const { return part<QCheckBox>(magnifier(), "frozen")->isChecked(); }
    int size() const { return pixels().content().size; }
    /// As it says itself.
    QPoint middle() const
    {
        const QStringList words = readOutOfMagnifier().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        return {words.at(1).toInt(), words.at(3).toInt()};
    }
    void pressIn(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QApplication::setActiveWindow(magnifier());
        QTest::keyClick(&pixels(), key, modifiers);
    }
    /// Where the pixels leave it to, as they do with whatever they do not want.
    void wheel(int angle) const { LookingTest::wheel(*magnifier(), angle); }
    void turn(int steps) const { wheel(120 * steps); }
};

} // namespace testing
