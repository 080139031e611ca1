#pragma once

#include <QtGui/QIcon>
#include <QtWidgets/QFrame>

class QLabel;

namespace ORVTListview {

// What a card shows; parts that are empty have no place in it.
struct TipContent
{
    QIcon picture;
    QString title;
    QString kind;
    QString value;
    QString text;
};

// A tip in the look of the platform's, made of several parts. It takes neither the focus
// nor the mouse. Texts are shown as they stand, wrapped where they are wide; what is too
// long to be read is cut.
class TipCard final : public QFrame
{
    Q_OBJECT

public:
    // A window of its own beside the owner's; named TipCard.
    explicit TipCard(QWidget &owner);

    // On the screen; over or under a word, and beside a row.
    void showAt(const QRect &word, const TipContent &content);
    void showBeside(const QRect &row, const TipContent &content);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void fill(const TipContent &content);
    QRect screenOf(const QRect &place) const;
    void showIn(const QRect &place);

    QLabel *m_picture;
    QLabel *m_title;
    QLabel *m_kind;
    QLabel *m_value;
    QLabel *m_text;
};

} // namespace ORVTListview
