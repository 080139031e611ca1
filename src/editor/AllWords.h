#pragma once

#include "editor/WordListFace.h"

namespace ORVTListview {

// A word list that is ListView1 itself, with all words; the first one that begins as what
// is typed does is chosen and stands first.
class AllWords final : public WordListFace
{
    Q_OBJECT

public:
    using WordListFace::WordListFace;

    QAbstractItemView &view() override;
    bool show(const QString &word) override;
    void choose() override;
    void choose(int row) override;
    int chosen() const override;
    void fit(int width) override;

protected:
    void measure() override;
    int rowWidth() override;

private:
    int widestRow() const;
    void showFirst(int row);

    QString m_word;
    int m_width = 0; // of the widest text
};

} // namespace ORVTListview
