#pragma once

#include "widgets/box/BoxLayers.h"
#include "widgets/box/FontLetters.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtGui/QStaticText>

#include <utility>

class QPlainTextEdit;

namespace ORVTListview {

// What the host tells of names, faintly behind the end of each line that uses them. New
// values are taken ten times a second at most, and only lines that are shown are looked at.
class LiveValues final : public QObject, public BoxLayer
{
    Q_OBJECT

public:
    using Values = QHash<QString, QString>; // by name

    LiveValues(QPlainTextEdit &box, BoxLayers &layers);

    void setOn(bool on);

    // Names in any letter case. Kept while it is off.
    void set(const Values &values);

    // What is shown behind a line, all of it; nothing while it is off.
    QString textOn(const QTextBlock &line) const;

    void paintAbove(QPainter &painter, const ShownLines &lines) override;
    int reachBeyond() const override { return m_reach; }

Q_SIGNALS:
    void changed();

private:
    void take();
    void clear();
    void repaint();
    void followChange();
    void noteLetters(QStringView shown);
    QRectF roomBehind(const ShownLine &line) const;
    const QStaticText &laidOut(const QString &values, Qt::LayoutDirection direction,
                               const QFont &font, qreal room);

    QPlainTextEdit &m_box;
    Values m_given;        // as they came
    bool m_isTaken = true; // what was given is what is shown
    Values m_values;       // by the folded name; empty while it is off
    int m_reach = 0;       // above and below a line, of what is shown
    QHash<std::pair<QString, Qt::LayoutDirection>, QStaticText> m_laidOut; // in one font
    FontLetters m_letters;                                                 // of this font
    QTimer *const m_pause; // the box's, named LiveValuesPause
};

} // namespace ORVTListview
