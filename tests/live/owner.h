// SPDX-License-Identifier: MIT
#pragma once

#include "tests/live/page.h"

#include <QList>
#include <QVBoxLayout>
#include <QWidget>

namespace testing {

/// A window that takes the page in and back, as the main window does.
class Owner : public QWidget
{
    Q_OBJECT

public:
    explicit Owner(Page& page) : m_page(page), m_layout(new QVBoxLayout(this))
    {
        m_layout->addWidget(&page.window());
        page->setOwner(this);
        resize(900, 640);
        show();
    }
    ~Owner() override
    {
        if (m_page->parentWidget() == this)
            m_page->setParent(nullptr); // the page is its test's
    }
    QList<bool> heard;
    QList<bool> subWindow; ///< whether the page was one, each time it came back
    int disconnects = 0;

public slots:
    void fullscr(bool sta)
    {
        heard.append(sta);
        subWindow.append(m_page->windowFlags().testFlag(Qt::SubWindow));
        m_layout->addWidget(&m_page.window());
        m_page->show();
    }
    void Action_Disconnect() { ++disconnects; }

private:
    Page& m_page;
    QVBoxLayout* m_layout;
};

} // namespace testing
