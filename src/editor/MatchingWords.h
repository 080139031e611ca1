#pragma once

#include "editor/MatchDelegate.h"
#include "editor/MatchModel.h"
#include "editor/WordListFace.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>

class QListView;

namespace ORVTListview {

// A word list of the entries of ListView1 that hold the word, with what they are beside
// them.
class MatchingWords final : public WordListFace
{
    Q_OBJECT

public:
    MatchingWords(ReportList &list, const PopupWords &words);
    ~MatchingWords() override;

    QAbstractItemView &view() override;
    bool show(const QString &word) override;
    void choose() override;
    void choose(int row) override;
    int chosen() const override;

    // By the words' names, in any letter case.
    void setDescriptions(const QHash<QString, QString> &descriptions);

    // Whether what merely holds the word is chosen, too.
    void setAsked(bool asked) { m_isAsked = asked; }

Q_SIGNALS:
    void doubleClicked();

protected:
    void measure() override;
    int rowWidth() override;

private:
    void makeView();
    void mark(int row);
    void selectEntryOf(int row);
    QString kindOf(const QString &text) const;
    QString descriptionOf(const QString &text) const;

    MatchModel m_model;
    MatchDelegate m_delegate;
    MatchDelegate::Widths m_widths;
    QPointer<QListView> m_view;             // of the list's parent, made when it is first needed
    QHash<QString, QString> m_descriptions; // by the folded names
    bool m_isAsked = true;
};

} // namespace ORVTListview
