// SPDX-License-Identifier: MIT
#include "analysis/windows/area_box.h"

#include <QSignalBlocker>

#include <algorithm>

namespace analysis {

AreaBox::AreaBox(const QStringList& fixed) : m_fixed(fixed.size())
{
    addItems(fixed);
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this] { m_chosen = tool(); });
    connect(this, qOverload<int>(&QComboBox::activated), this, [this] { m_chosen = tool(); });
}

void AreaBox::list(const overlay::Tools& tools)
{
    QStringList names;
    overlay::forEachTool(tools, [&names](const auto& tool) { names.append(tool.name); });
    QStringList listed;
    for (int entry = m_fixed; entry < count(); ++entry)
        listed.append(itemText(entry));
    if (names == listed)
        return;
    const QSignalBlocker quiet(this);
    const int before = currentIndex();
    while (count() > m_fixed)
        removeItem(count() - 1);
    addItems(names);
    if (!m_chosen.isEmpty())
        setCurrentIndex(names.contains(m_chosen) ? m_fixed + names.indexOf(m_chosen) : 0);
    else
        setCurrentIndex(before);
}

void AreaBox::choose(const QString& tool)
{
    const int entry = findText(tool);
    setCurrentIndex(std::max(entry, 0));
}

QString AreaBox::tool() const
{
    return currentIndex() >= m_fixed ? currentText() : QString();
}

std::optional<Area> areaNamed(const QString& name, const overlay::Tools& tools,
                              const Temperatures& temperatures, Conversion conversion)
{
    if (name.isEmpty())
        return wholePicture(temperatures, conversion);
    std::optional<Area> area;
    overlay::forEachTool(tools, [&](const auto& tool) {
        if (tool.name == name)
            area = areaOf(tool, temperatures, conversion);
    });
    return area;
}

} // namespace analysis
