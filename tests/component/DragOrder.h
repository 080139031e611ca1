#pragma once

#include <ORVTListview/InputComponent.h>

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>
#include <QtCore/QString>

namespace ORVTListview {

// The events that one component raises in a drag, a letter each.
class DragOrder : public QObject
{
public:
    explicit DragOrder(InputComponent &component)
    {
        connect(&component, &InputComponent::OLEStartDrag, this, [this] { m_source += u'S'; });
        connect(&component, &InputComponent::OLEGiveFeedback, this, [this] { m_source += u'F'; });
        connect(&component, &InputComponent::OLECompleteDrag, this, [this] { m_source += u'C'; });
        connect(&component, &InputComponent::OLEDragDrop, this, [this] { m_target += u'D'; });
        connect(&component, &InputComponent::OLEDragOver, this,
                [this](DataObject *, qint32 &, qint16, qint16, float, float, qint16 state) {
                    m_target += QStringLiteral("ELO")[state];
                });
    }

    QString wrong() const
    {
        static const QRegularExpression source(QStringLiteral("^(SF*C?)?$"));
        static const QRegularExpression target(QStringLiteral("^(EO*[LD])*(EO*)?$"));
        return source.match(m_source).hasMatch() && target.match(m_target).hasMatch()
                   ? QString()
                   : QStringLiteral("events in the order ") + m_source + u' ' + m_target;
    }
    // The drag, for this component.
    bool isOver() const
    {
        return !m_target.endsWith(u'E') && !m_target.endsWith(u'O') && !m_source.endsWith(u'F');
    }
    void clear()
    {
        m_source.clear();
        m_target.clear();
    }

private:
    QString m_source;
    QString m_target;
};

} // namespace ORVTListview
