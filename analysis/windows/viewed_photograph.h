// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/photograph_reader.h"
#include "analysis/windows/picture_marks.h"
#include "overlay/tool_history.h"

#include <QPointer>
#include <QTimer>

class Analysis_Widget;

namespace Ui {
class Analysis_Widget;
}

namespace analysis {

/// The photograph in an analysis window, for the windows beside it: what it shows now, when that
/// becomes other, where the mouse is, and marks in its picture. Lives as long as the analysis
/// window. GUI thread only.
class ViewedPhotograph : public QObject
{
    Q_OBJECT

public:
    /// The form is that of the window.
    ViewedPhotograph(Analysis_Widget& window, const Ui::Analysis_Widget& form);

    Analysis_Widget& window() const { return m_window; }
    QString name() const; ///< of its file
    const Photograph& photograph() const;
    /// What the unit selector shows.
    ShownUnit unit() const;
    /// The finished tools and the selection, a tool that is being dragged as it is now.
    overlay::Tools tools() const;

    /// Replaces the owner's marks in the picture; none, or the owner's end, takes them away.
    void mark(const QObject& owner, const std::vector<PictureMark>& marks);

    /// To be called after anything that may have changed the tools without a signal of the label.
    void look();
    /// To be called when another photograph has been read, or this one is shown in another way.
    void becomeOther();

signals:
    /// Photograph, unit, tools or selection are other than before; told once for all that changed
    /// before the event loop was reached again.
    void changed();
    /// The image position under the mouse, inside the picture.
    void pointed(int x, int y);

private:
    void tell();

    Analysis_Widget& m_window;
    const Ui::Analysis_Widget& m_form;
    overlay::ToolsState m_seen;
    bool m_isOther = false; ///< than tools alone could tell
    QTimer m_soon;
    QPointer<PictureMarks> m_marks; ///< a child of the label, made for the first mark
};

} // namespace analysis
