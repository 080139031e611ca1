#pragma once

#include "editor/MatchDelegate.h"
#include "editor/MatchModel.h"
#include "editor/WordListFace.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QFont>

class QListView;

namespace ORVTListview {

class PopupWords;
class ReportList;

// A word list of the entries of ListView1 that hold the word, with what they are beside
// them.
class MatchingWords final : public QObject, public WordListFace
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
    int rows() const override;
    int rowHeight() const override;
    int wantedWidth() override;
    void fit(int width) override;

    // By the words' names, in any letter case.
    void setDescriptions(const QHash<QString, QString> &descriptions);

    // Whether what merely holds the word is chosen, too.
    void setAsked(bool asked) { m_isAsked = asked; }

Q_SIGNALS:
    void doubleClicked();

private:
    void makeView();
    void mark(int row);
    void selectInList(int row);
    void measure();
    QString kindOf(const QString &text) const;
    QString descriptionOf(const QString &text) const;

    ReportList &m_list;
    const PopupWords &m_words;
    MatchModel m_model;
    MatchDelegate m_delegate;
    MatchDelegate::Widths m_widths;
    QPointer<QListView> m_view;             // of the list's parent, made when it is first needed
    QHash<QString, QString> m_descriptions; // by the folded names
    bool m_isAsked = true;
    bool m_isMeasured = false;
};

} // namespace ORVTListview
