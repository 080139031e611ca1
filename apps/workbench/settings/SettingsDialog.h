#pragma once

#include "workbench/settings/Settings.h"
#include "workbench/settings/TypingHelps.h"

#include <QtWidgets/QDialog>

class QComboBox;
class QFontComboBox;
class QGridLayout;
class QLabel;
class QSpinBox;
class QCheckBox;
class QPushButton;

namespace ORVTListview {

class ColourPreview;

// What the user decides for all projects, with a preview that follows at once.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    // The project's appearance is what ColourSet::Project shows.
    SettingsDialog(const Settings &settings, const RichTextSettings &project,
                   const TypingHelps &helps, QWidget *parent);

    Settings settings() const { return m_settings; }
    TypingHelps typingHelps() const { return m_helps; }

private:
    QWidget *makeWindowPart();
    QWidget *makeProgramPart();
    QWidget *makeColourButtons();
    QWidget *makeTypingPart();
    void addHelp(QGridLayout &layout, const QString &text, bool TypingHelps::*help);
    void addColour(QGridLayout &layout, const QString &name, ClassColour colour);
    void chooseSet(int row);
    void chooseColour(ClassColour colour);
    RichTextSettings seen() const;
    void takeFont();
    void takeSize(int points);
    void restoreDefaults();
    void showSettings();
    void showColours();

    Settings m_settings;
    RichTextSettings m_project;
    TypingHelps m_helps;
    QComboBox *m_language;
    QComboBox *m_theme;
    QComboBox *m_set;
    QCheckBox *m_ownFont;
    QFontComboBox *m_font;
    QSpinBox *m_size;
    QList<std::pair<QPushButton *, ClassColour>> m_colours;
    QList<std::pair<QCheckBox *, bool TypingHelps::*>> m_helpBoxes;
    QLabel *m_warning;
    ColourPreview *m_preview;
};

} // namespace ORVTListview
