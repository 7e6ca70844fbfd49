// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/windows/analysis_widget.h"
#include "analysis/windows/viewed_photograph.h"

namespace analysis {

/// A window beside the picture that shows more of one photograph. A photograph has one of each
/// class, which goes with it; opened again, it comes to the front. Escape and the window's frame
/// close it, and it is gone then. GUI thread only.
///
/// Its own dialogs belong to page().window(), which outlives it, and are opened by
/// `dialogs::open(dialog, this)`: they end with this window.
class BesideWindow : public QWidget
{
    Q_OBJECT

public:
    /// The window of this class beside this photograph. A class has Q_OBJECT and a constructor that
    /// takes the photograph.
    template<typename Window>
    static Window& open(ViewedPhotograph& viewed)
    {
        auto* window = viewed.window().findChild<Window*>(QString(), Qt::FindDirectChildrenOnly);
        if (!window) {
            window = new Window(viewed);
            window->appear();
        }
        window->raise();
        window->activateWindow();
        return *window;
    }

protected:
    /// `title` says what it shows; the name of the photograph's file follows.
    BesideWindow(ViewedPhotograph& viewed, const QString& title);

    ViewedPhotograph& viewed() const { return m_viewed; }
    Analysis_Widget& page() const { return m_viewed.window(); }

    /// Shows the photograph as it is now. Called when the window appears, and while it is visible
    /// after each change.
    virtual void refresh() = 0;

    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void appear();
    void take();

    ViewedPhotograph& m_viewed;
    const QString m_title;
};

} // namespace analysis
