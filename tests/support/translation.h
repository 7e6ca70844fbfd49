// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace testing {

/// A catalogue, ":/Demo_EN.qm", that is installed while it lives. One that is not there translates
/// nothing.
class Translation : public QTranslator
{
public:
    explicit Translation(const QString& path) : m_isLoaded(load(path))
    {
        QCoreApplication::installTranslator(this);
    }
    ~Translation() override { QCoreApplication::removeTranslator(this); }
    Translation(const Translation&) = delete;
    Translation& operator=(const Translation&) = delete;
    bool isLoaded() const { return m_isLoaded; }

private:
    bool m_isLoaded;
};

} // namespace testing
