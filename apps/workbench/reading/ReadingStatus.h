#pragma once

#include <QtWidgets/QWidget>

class QLabel;
class QToolButton;

namespace ORVTListview {

class PointReading;

// In the status bar: how far a reading is, with a button that stops it; then what has gone
// wrong with it, until one goes well.
class ReadingStatus : public QWidget
{
    Q_OBJECT

public:
    // The reading lives as long as this.
    ReadingStatus(PointReading &reading, QWidget *parent);

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    // A reading that a user wanted has gone well.
    void succeeded();

private:
    void showProgress();
    void showEnd();
    void tell(const QString &text);
    QString sentence() const;

    PointReading &m_reading;
    QLabel *m_text;
    QToolButton *m_stop;
    bool m_isWanted = false; // by the user
};

} // namespace ORVTListview
