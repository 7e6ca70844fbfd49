// SPDX-License-Identifier: MIT
#include "tests/support/accessible.h"

#include <QAccessible>
#include <QLabel>

namespace testing {

QStringList namelessWidgets(const QWidget* window)
{
    QStringList nameless;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool isPicture = label && !label->pixmap(Qt::ReturnByValue).isNull() &&
                               widget->parentWidget()->accessibleName().isEmpty();
        const bool takesFocus = widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy();
        if (!widget->isVisible() || (!takesFocus && !isPicture))
            continue;
        const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
        if (!told || told->text(QAccessible::Name).trimmed().isEmpty())
            nameless.append(QStringLiteral("%1 %2").arg(
                QString::fromLatin1(widget->metaObject()->className()), widget->objectName()));
    }
    return nameless;
}

} // namespace testing
