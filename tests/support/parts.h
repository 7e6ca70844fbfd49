// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace testing {

/// A window's part by its object name, which must be there: the run ends with the names that are.
template<typename T>
T* part(const QWidget* window, const char* name)
{
    T* const found = window->findChild<T*>(QLatin1String(name));
    if (!found) {
        QStringList names;
        for (const QObject* other : window->findChildren<T*>())
            names.append(other->objectName());
        qFatal("no %s named %s; there are: %s", T::staticMetaObject.className(), name,
               qPrintable(names.join(QLatin1Char(' '))));
    }
    return found;
}

} // namespace testing
