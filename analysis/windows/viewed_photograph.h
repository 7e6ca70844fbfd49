// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/correction.h"
#include "analysis/photograph/isotherm.h"
#include "analysis/photograph/photograph_reader.h"
#include "analysis/windows/picture_marks.h"
#include "overlay/tool_history.h"

#include <QImage>
#include <QPoint>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>

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
    /// The picture in the colours that the window shows now: 240 × 320, red, green and blue.
    QImage colours() const;
    /// The image position that the mouse was at last; the middle of the picture before.
    QPoint pointedAt() const { return m_pointedAt; }

    /// What its temperatures are stored in; nothing where it does not say.
    std::optional<Unit> scale() const;

    /// Nothing while readings are only shown as they are stored, as at first.
    const std::optional<Correction>& correction() const { return m_correction; }
    /// One that has a problem, or is for a photograph without a scale, is as good as none.
    void setCorrection(const std::optional<Correction>& correction);
    /// The second set of temperatures, to be measured like the stored ones and shown beside them
    /// under its name; null and empty while there is none.
    std::shared_ptr<const Temperatures> corrected() const { return m_corrected.temperatures; }
    QString correctionName() const;
    int withoutCorrected() const; ///< pixels that have a stored temperature only

    /// Nothing while the picture is coloured by its palette alone, as at first.
    const std::optional<Isotherm>& isotherm() const { return m_isotherm; }
    void setIsotherm(const std::optional<Isotherm>& isotherm);
    /// Onto the picture in false colours.
    void paintIsotherm(cv::Mat& colours) const;

    /// Replaces the owner's marks in the picture; none, or the owner's end, takes them away.
    void mark(const QObject& owner, const std::vector<PictureMark>& marks);

    /// To be called after anything that may have changed the tools without a signal of the label.
    void look();
    /// To be called when a photograph has been read.
    void takePhotograph();
    /// To be called when it is shown in another way.
    void becomeOther();
    /// To be called when colours() is other than before.
    void recolour();

signals:
    /// Photograph, unit, tools, selection, correction or isotherm are other than before; told once
    /// for all that changed before the event loop was reached again.
    void changed();
    /// colours() is other than before; told as seldom as changed().
    void recoloured();
    /// The image position under the mouse, inside the picture.
    void pointed(int x, int y);

private:
    void tell();
    void correctAnew();

    Analysis_Widget& m_window;
    const Ui::Analysis_Widget& m_form;
    overlay::ToolsState m_seen;
    bool m_isOther = false; ///< than tools alone could tell
    bool m_isRecoloured = false;
    QPoint m_pointedAt{format::columns / 2, format::rows / 2};
    QTimer m_soon;
    QString m_path; ///< of the photograph that the next three are of
    std::optional<Correction> m_correction;
    CorrectedTemperatures m_corrected;
    std::optional<Isotherm> m_isotherm;
    QPointer<PictureMarks> m_marks; ///< a child of the label, made for the first mark
};

} // namespace analysis
