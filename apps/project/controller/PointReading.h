#pragma once

#include "project/ProjectRow.h"
#include "project/controller/Controller.h"
#include "project/controller/PointRows.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

#include <chrono>
#include <optional>

namespace ORVTListview {

class ProjectDocument;

// The one place that asks the controller. What it answers goes into the project's tables,
// which everything that shows values reads: to the point that was asked for, wherever its
// row is by then, and nowhere when that has got another name or is gone.
class PointReading : public QObject
{
    Q_OBJECT

public:
    // The document outlives it; the controller may go before.
    PointReading(ProjectDocument &document, Controller &controller, QObject *parent = nullptr);

    // Whether the type has points with values; for dsCode, whether words of the program have.
    bool canRead(LwType type) const;

    // Asks for the values of a type's points, for dsCode of all that are words of the
    // program. While a question is open that is not about them, they wait for its end.
    void read(LwType type);
    void readAll();

    // What was read until then stays.
    void stop();

    // What is asked by itself, again and again, is no such reading.
    bool isReading() const { return m_question.isOpen && m_question.isWanted; }

    // Of the question that is open, or of the last one.
    qsizetype asked() const { return m_question.asked; }
    qsizetype answered() const { return m_question.answered; }
    qint64 when() const { return m_question.when; } // milliseconds since 1970, UTC

    // What has gone wrong with it, as a sentence without its point; empty for nothing.
    QString fault() const;

    // As the project has it now; invalid for a point that is gone.
    QVariant valueOf(const AskedPoint &point) const;

    // Whether the last question about the point brought no value.
    bool isOld(const AskedPoint &point) const { return m_old.contains(point); }

    // Reads everything again and again, so long after each end; 0 for never.
    void setPause(std::chrono::milliseconds pause);
    bool isCyclic() const { return m_pause.count() > 0; }

Q_SIGNALS:
    // A question that a user wants begins.
    void begun();

    // The project has values of these points.
    void valuesRead(const QList<ORVTListview::AskedPoint> &points);

    // A question has ended; for these points it brought no value. None when it was stopped.
    void ended(const QList<ORVTListview::AskedPoint> &missed);

    // The project is another one: what was asked counts no more.
    void dropped();

private:
    struct Question
    {
        quint64 number = 0;
        bool isOpen = false;
        bool isWanted = false; // by the user
        QSet<LwType> types = {};
        QHash<AskedPoint, ProjectRow> open = {}; // as they were when they were asked for
        qsizetype asked = 0;
        qsizetype answered = 0;
        qint64 when = 0;
        QStringList faults = {};
    };

    static QSet<LwType> typesFor(LwType type);
    PointRows &rows() const;
    void want(const QSet<LwType> &types);
    void ask(const QSet<LwType> &types, bool isWanted);
    QList<AskedPoint> open(LwType type);
    void take(quint64 question, const QList<PointAnswer> &answers);
    bool takeOne(const PointAnswer &answer);
    QString faultOf(const AskedPoint &point, const ProjectRow &row, const QVariant &value) const;
    void fail(quint64 question, const QString &reason);
    void end(quint64 question);
    void finish();
    void goOn();
    void drop();

    ProjectDocument &m_document;
    QPointer<Controller> m_controller;
    Question m_question;
    QSet<LwType> m_waiting;
    QSet<AskedPoint> m_old;
    std::chrono::milliseconds m_pause{0};
    QTimer m_cycle;
    mutable std::optional<PointRows> m_rows; // of the tables as they are
};

} // namespace ORVTListview
