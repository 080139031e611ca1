#pragma once

#include "workbench/settings/ColourSets.h"

#include <QtCore/QList>
#include <QtWidgets/QDialog>

class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace ORVTListview {
class ColourPreview;
}

// The colours of an editor's words and of its ground, with a small program in them.
class ColoursDialog : public QDialog
{
    Q_OBJECT

public:
    ColoursDialog(const QString &colours, QWidget *parent);

    // For the editor's programColours; empty for none.
    QString colours() const;

private:
    enum Set { None, Light, Dark, HighContrast, Own };
    struct Part
    {
        QPushButton *button;
        ORVTListview::ClassColour colour;
    };

    void readColours(const QString &text);
    QWidget *makeButtons();
    void addButton(QGridLayout &layout, const QString &name, ORVTListview::ClassColour colour);
    void chooseSet(int set);
    void choose(ORVTListview::ClassColour colour);
    void showColours();
    void showFaint(const QStringList &faint);

    ORVTListview::RichTextSettings m_colours;
    QComboBox *m_set;
    QList<Part> m_parts;
    ORVTListview::ColourPreview *m_preview;
    QLabel *m_faint;
};
