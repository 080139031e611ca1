#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

class QSettings;

namespace ORVTListview {

// The projects that were opened last, by their files' whole names, the latest first, and
// whether the latest is opened at the next start. Several workbenches share one store.
class RecentProjects : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Without a store the list ends with its owner. The store outlives the list.
    void keepIn(QSettings &store) { m_store = &store; }

    // At most ten.
    QStringList files() const;
    void add(const QString &fileName);
    void remove(const QString &fileName);
    void clear();

    // Yes at first.
    bool opensLast() const;
    void setOpensLast(bool on);

    // The project to open at a start; empty for none.
    QString fileAtStart() const { return opensLast() ? files().value(0) : QString(); }

Q_SIGNALS:
    void changed();

private:
    void setFiles(const QStringList &files);

    QSettings *m_store = nullptr;
    QStringList m_files; // where there is no store
    bool m_opensLast = true;
};

} // namespace ORVTListview
