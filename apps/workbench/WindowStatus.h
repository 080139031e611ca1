#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

class QLabel;
class QStatusBar;

namespace ORVTListview {

class OpeningProgress;

// The window's status bar: the program and the caret in it, how far it is opened, and what is
// told for a while.
class WindowStatus : public QObject
{
    Q_OBJECT

public:
    explicit WindowStatus(QStatusBar &bar);

    OpeningProgress &opening() const { return *m_opening; }

    // As long as it takes to read.
    void tell(const QString &text);
    void tellLonger(const QString &text);

    // Until it is taken back.
    void tellLasting(const QString &text);
    void takeBack();

    // Of a step of the project that was taken back or done again, till another one.
    void tellOfStep(const QString &text);
    void takeBackStep();

    bool isTelling() const;

    void showProgram(const QString &text);
    void showPosition(const QString &text);
    void setPositionVisible(bool visible);

    // After a change of language.
    void retranslate();

private:
    QStatusBar &m_bar;
    QLabel *m_program;
    OpeningProgress *m_opening;
    QLabel *m_position;
    QString m_step; // told last
};

} // namespace ORVTListview
