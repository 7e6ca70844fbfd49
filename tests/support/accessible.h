// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QWidget;

namespace testing {

/// The visible widgets in `window` that a screen reader could say nothing about: those that take
/// the focus, and those that show a picture, when neither they nor, for a picture, what it is a
/// part of have a name. Each as its class and object name.
QStringList namelessWidgets(const QWidget* window);

} // namespace testing
