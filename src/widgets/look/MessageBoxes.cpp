#include "widgets/look/MessageBoxes.h"

#include <QtGui/QGuiApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

namespace ORVTListview {
namespace {

// A message is there to be clicked, whatever the program shows that it is busy with.
class UsualPointer
{
public:
    UsualPointer()
        : m_isNeeded(QGuiApplication::overrideCursor() != nullptr)
    {
        if (m_isNeeded)
            QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~UsualPointer()
    {
        if (m_isNeeded)
            QGuiApplication::restoreOverrideCursor();
    }
    Q_DISABLE_COPY_MOVE(UsualPointer) // one override

private:
    bool m_isNeeded;
};

} // namespace

void MessageBoxes::show(const Message &message)
{
    if (m_depth > 0) {
        if (m_shown.contains(message))
            return;
        m_shown.append(message);
    }
    const bool warns = message.icon == Message::Icon::Exclamation;
    QMessageBox box(warns ? QMessageBox::Warning : QMessageBox::NoIcon,
                    message.title.isEmpty() ? QGuiApplication::applicationDisplayName()
                                            : message.title,
                    message.text, QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    const UsualPointer pointer;
    box.exec();
}

void MessageBoxes::beginBatch()
{
    ++m_depth;
}

void MessageBoxes::endBatch()
{
    if (--m_depth == 0)
        m_shown.clear();
}

void MessageBoxes::installAsDefault()
{
    static MessageBoxes boxes;
    Messages::setDefaultService(&boxes);
}

} // namespace ORVTListview
