// SPDX-License-Identifier: MIT
#include "analysis/windows/magnifier.h"
#include "simulator/tour/opened_photograph.h"

#include <QCheckBox>
#include <QLabel>
#include <QTest>

namespace tour {
namespace {

/// A window beside the picture, as soon as it is on the screen.
template<typename Window>
Window& shownBeside(Walk& walk)
{
    const auto find = [&] {
        return analysisOf(walk).findChild<Window*>();
    };
    walk.await("a window opens beside the picture",
               [&] { return find() && find()->isActiveWindow(); });
    return *find();
}

template<typename Window>
void close(Walk& walk)
{
    QTest::keyClick(analysisOf(walk).findChild<Window*>(), Qt::Key_Escape);
    walk.await("the window beside the picture is gone", [&] {
        return !analysisOf(walk).findChild<Window*>() && analysisOf(walk).isActiveWindow();
    });
}

void magnify(Walk& walk)
{
    walk.await("the keys are the program's again",
               [&] { return analysisOf(walk).isActiveWindow(); });
    QTest::keyClick(analysisOf(walk).focusWidget(), Qt::Key_F8);
    auto& magnifier = shownBeside<analysis::Magnifier>(walk);
    MyLabel& picture = pictureOf(walk);
    const auto& readOut = find<QLabel>(magnifier, "readOut");
    const QString before = readOut.text();
    // The edge of the hot joint.
    QTest::mouseMove(&picture, {picture.width() / 2 + picture.imageWidth / 18,
                                picture.height() / 2 + picture.imageHeight / 15});
    walk.await("it is where the mouse is", [&] { return readOut.text() != before; });
    walk.click(find<QCheckBox>(magnifier, "frozen"));
    walk.shoot("magnifier");
    close<analysis::Magnifier>(walk);
}

} // namespace

void takeLookingSteps(Walk& walk)
{
    magnify(walk);
}

} // namespace tour
