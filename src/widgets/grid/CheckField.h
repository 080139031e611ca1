#pragma once

#include <ORVTListview/CellRule.h>

#include <QtWidgets/QCheckBox>

namespace ORVTListview {

// A box for yes or no, with the word beside it. A letter chooses the word that begins
// with it.
class CheckField final : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(QString word READ word WRITE setWord USER true)

public:
    CheckField(const CellRule &rule, QWidget *parent);

    // Nobody has chosen: what it was given.
    QString word() const;
    void setWord(const QString &word);

    // Whether a word begins with it, which is then chosen.
    bool choose(const QString &beginning);

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showWord();

    const CellRule m_rule;
    QString m_given;
    bool m_isChosen = false; // by the user
};

} // namespace ORVTListview
