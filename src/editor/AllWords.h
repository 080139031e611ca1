#pragma once

#include "editor/WordListFace.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtGui/QFont>

namespace ORVTListview {

class PopupWords;
class ReportList;

// A word list that is ListView1 itself, with all words; the first one that begins as what
// is typed does is chosen and stands first.
class AllWords final : public QObject, public WordListFace
{
    Q_OBJECT

public:
    AllWords(ReportList &list, const PopupWords &words);

    QAbstractItemView &view() override;
    bool show(const QString &word) override;
    void choose() override;
    void choose(int row) override;
    int chosen() const override;
    int rows() const override;
    int rowHeight() const override;
    int wantedWidth() override;
    void fit(int width) override;

private:
    int widestRow() const;
    void showFirst(int row);

    ReportList &m_list;
    const PopupWords &m_words;
    QString m_word;
    QFont m_measuredIn;
    int m_measured = 0; // the width of all texts in that font; 0 when it is not known
};

} // namespace ORVTListview
