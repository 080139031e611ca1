#pragma once

#include "editor/rules/KeyRules.h"

#include <QtCore/QtGlobal>

namespace ORVTListview {

class CodeEditor;

// Carries out what the key rules decide.
class EditorKeys
{
public:
    explicit EditorKeys(CodeEditor &editor);

    // KeyCode becomes 0 when the box is not to see the key.
    void keyDown(qint16 &KeyCode, qint16 Shift);

    KeyDecision decide(qint16 keyCode, qint16 shift) const;

private:
    // Each returns whether the key goes on to the box.
    bool carryOut(KeyDecision decision, qint16 &KeyCode, qint16 Shift);
    bool runCommand(KeyDecision decision);
    bool editingKey(qint16 keyCode);
    bool hasSelection() const;

    CodeEditor &m_editor;
};

} // namespace ORVTListview
