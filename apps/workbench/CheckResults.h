#pragma once

#include "project/ProgramCheck.h"

#include <QtWidgets/QDockWidget>

class QTreeView;

namespace ORVTListview {

class CheckModel;
class ImageList;

// The list under the editor that shows what a check of the program found.
class CheckResults : public QDockWidget
{
    Q_OBJECT

public:
    CheckResults(const ImageList &pictures, QWidget *parent);

    void showFindings(const QList<ProgramFinding> &findings);
    void showWords(const QList<ProgramWord> &words);

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    // A row was clicked, or Enter pressed on it. Lines count from 1.
    void chosen(const QString &word, qint32 line);

private:
    void choose(const QModelIndex &index);
    void showModel();
    void fitColumns();

    CheckModel *m_model;
    QTreeView *m_view;
};

} // namespace ORVTListview
