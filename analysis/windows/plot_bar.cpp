// SPDX-License-Identifier: MIT
#include "analysis/windows/plot_bar.h"

#include "plots/plot_view.h"

#include <QAction>
#include <QBoxLayout>
#include <QFileInfo>
#include <QPushButton>

namespace analysis {

void addPlotButtons(QBoxLayout& layout, plots::PlotView& view)
{
    for (const QAction* action : view.actions()) {
        auto* button = new QPushButton(action->text());
        button->setObjectName(action->objectName());
        QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
        layout.addWidget(button);
    }
}

QString plotFileName(const QString& photograph, const QString& subject)
{
    return QFileInfo(photograph).completeBaseName() + QLatin1Char('-') + subject;
}

} // namespace analysis
