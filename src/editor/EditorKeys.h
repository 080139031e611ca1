#pragma once

#include "editor/rules/KeyRules.h"

#include <QtCore/QObject>

namespace ORVTListview {

class EditorUndo;
class ProgramClipboard;
class ProgramEditing;
class ProgramText;
class StatusTimer;
class TypedColouring;
class WordChoice;

// Carries out what the key rules decide.
class EditorKeys : public QObject
{
    Q_OBJECT

public:
    // What carries out each of the decisions.
    struct Acts
    {
        ProgramText &text;
        ProgramEditing &editing;
        ProgramClipboard &clipboard;
        WordChoice &words;
        EditorUndo &undo;
        TypedColouring &colouring;
        StatusTimer &status;
    };

    explicit EditorKeys(const Acts &acts);

    // KeyCode becomes 0 when the box is not to see the key.
    void keyDown(qint16 &KeyCode, qint16 Shift);

    KeyDecision decide(qint16 keyCode, qint16 shift) const;

Q_SIGNALS:
    void KeyDown(qint16 &KeyCode, qint16 &Shift);
    void QueryAnalyze();
    void QueryCompile();

private:
    // Each returns whether the key goes on to the box.
    bool carryOut(KeyDecision decision, qint16 &KeyCode, qint16 Shift);
    bool runCommand(KeyDecision decision) const;
    bool editingKey(qint16 keyCode);
    bool movingKey(qint16 keyCode);
    KeyState state(bool popupListShown) const;

    Acts m_acts;
};

} // namespace ORVTListview
