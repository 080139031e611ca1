#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtGui/QIcon>

#include <functional>
#include <optional>

class QHelpEvent;
class QPlainTextEdit;
class QTimer;

namespace ORVTListview {

class BoxLayers;
class HoverAnswer;
class Problems;
class TipCard;

// The one place that decides which tip is shown beside the program: what is wrong where
// the mouse rests, or else what the host answers about the word there. What the host is
// asked about the chosen entry of the word list comes here, too, so there is one card.
class HoverTips final : public QObject
{
    Q_OBJECT

public:
    // What only the owner can do.
    struct Host
    {
        std::function<bool()> listens;
        std::function<void(const QString &word, qint32 line, HoverAnswer *answer)> ask;
    };
    using Pictures = std::function<QIcon(const QString &key)>; // by a type's display name

    HoverTips(QPlainTextEdit &box, const BoxLayers &layers, const Problems &problems);

    void setHost(const Host &host) { m_host = host; }
    void setPictures(const Pictures &pictures) { m_pictures = pictures; }

    // Asks about a word that the caret's line may get, and shows the answer beside a row
    // on the screen.
    void tellBeside(const QRect &row, const QString &word);

    // Asks once more for what is shown beside a row, since values have changed.
    void renew();

    void hide();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Word
    {
        QString text;
        qint32 line = 0;      // from 1
        QList<QRectF> places; // in the viewport

        bool holds(const QPoint &place) const;

        friend bool operator==(const Word &, const Word &) = default;
    };

    std::optional<Word> wordAt(const QPoint &place) const;
    struct Beside
    {
        QRect row; // on the screen
        QString word;
    };

    QRect onScreen(const Word &word) const;
    void tellAtMouse();
    bool ask(const QString &word, qint32 line, HoverAnswer &answer);
    void followMouse(const QPoint &place, bool isDragging);
    void noteLeave();
    void watch(bool on);
    bool endsTip(const QObject *watched, const QEvent &event) const;
    bool showToolTip(const QHelpEvent &event);
    TipCard &card();

    QPlainTextEdit &m_box;
    const BoxLayers &m_layers;
    const Problems &m_problems;
    Host m_host;
    Pictures m_pictures;
    const QPointer<QWidget> m_viewport; // gone with the box
    QTimer *const m_rest;               // the box's, named MouseRest
    QPointer<TipCard> m_card;           // the box's; made when first shown
    std::optional<QPoint> m_mouse;      // in the viewport, while it is there
    std::optional<Word> m_word;         // asked about, until the mouse leaves it
    std::optional<Beside> m_beside;     // a row, as long as it is told of
    bool m_isWatching = false;
    bool m_isAsking = false;
};

} // namespace ORVTListview
