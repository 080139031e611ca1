#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtGui/QFont>

class QAbstractItemView;

namespace ORVTListview {

class PopupWords;
class ReportList;

// How a word list looks: what it shows for a word, and which row is chosen. Rows count
// from 0; -1 stands for none. Whatever the face, the row of ListView1 for what is chosen
// is selected there.
class WordListFace : public QObject
{
    Q_OBJECT

public:
    WordListFace(ReportList &list, const PopupWords &words);

    virtual QAbstractItemView &view() = 0;

    // Takes the rows for a word; false when there is none but the word itself.
    virtual bool show(const QString &word) = 0;

    // Chooses the row for the word that it shows and brings it into view.
    virtual void choose() = 0;

    virtual void choose(int row) = 0;
    virtual int chosen() const = 0;
    int rows();

    // In logical pixels; fit() tells how much a row has got.
    int rowHeight() const;
    int wantedWidth();
    virtual void fit(int width);

protected:
    ReportList &list() const { return m_list; }
    const PopupWords &known() const { return m_words; }

    // The host may have taken rows out of the list or put its own there.
    void selectInList(int entry);

    // The width of a text as a word list gives it room; a longer one ends in an ellipsis.
    int limited(int width) const;

    // Called when the texts or the list's font are others, before rowWidth().
    virtual void measure() = 0;
    virtual int rowWidth() = 0;

    // Has it measured again.
    void forgetWidths() { m_isMeasured = false; }

private:
    ReportList &m_list;
    const PopupWords &m_words;
    QFont m_measuredIn;
    bool m_isMeasured = false;
};

} // namespace ORVTListview
