#pragma once

#include <QtCore/QtGlobal>

class QAbstractItemView;
class QString;

namespace ORVTListview {

// How wide a word list is, in letters of average width. Texts that are longer end in an
// ellipsis.
constexpr int fewestLetters = 12;
constexpr int mostLetters = 48;

// How a word list looks: what it shows for a word, and which row is chosen. Rows count
// from 0; -1 stands for none. Whatever the face, the row of ListView1 for what is chosen
// is selected there.
class WordListFace
{
public:
    WordListFace() = default;
    Q_DISABLE_COPY_MOVE(WordListFace) // views know it by address
    virtual ~WordListFace() = default;

    virtual QAbstractItemView &view() = 0;

    // Takes the rows for a word; false when there is none but the word itself.
    virtual bool show(const QString &word) = 0;

    // Chooses the row for the word that it shows and brings it into view.
    virtual void choose() = 0;

    virtual void choose(int row) = 0;
    virtual int chosen() const = 0;
    virtual int rows() const = 0;

    // In logical pixels; fit() tells how much a row has got.
    virtual int rowHeight() const = 0;
    virtual int wantedWidth() = 0;
    virtual void fit(int width) = 0;
};

} // namespace ORVTListview
