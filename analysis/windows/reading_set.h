// SPDX-License-Identifier: MIT
#pragma once

#include "analysis/photograph/reading_texts.h"

#include <QWidget>

#include <memory>

class QCheckBox;
class QLabel;

namespace analysis {

class ViewedPhotograph;

/// The choice between a photograph's stored readings and its corrected ones, with the name of the
/// set that is chosen; hidden while there is only the stored set, which is then the chosen one. To
/// be refreshed when the photograph has changed. GUI thread only.
class ReadingSet : public QWidget
{
    Q_OBJECT

public:
    ReadingSet(const ViewedPhotograph& viewed, QWidget* parent);

    void refresh();
    /// Of the chosen set; valid until the next refresh.
    ReadingTexts texts() const;

signals:
    /// The user has chosen the other set.
    void chosen();

private:
    bool isCorrected() const;

    const ViewedPhotograph& m_viewed;
    QLabel* m_name;
    QCheckBox* m_box;
    std::shared_ptr<const Temperatures> m_corrected;
};

} // namespace analysis
