#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

namespace ORVTListview {

class RichTextBox;

// Tells whether the commands of an editor that change the program are possible. The box
// cannot bear a receiver that destroys it, so it is told soon afterwards, and once for
// what changed back meanwhile not at all.
class CommandsState final : public QObject
{
    Q_OBJECT

public:
    explicit CommandsState(RichTextBox &box);

Q_SIGNALS:
    void changed(bool enabled);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tell();

    const QPointer<RichTextBox> m_box;
    bool m_told;
    bool m_isToBeTold = false;
};

} // namespace ORVTListview
