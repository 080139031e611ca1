#pragma once

#include <QtCore/QMetaType>

#include <array>
#include <cstddef>

// A variable of a type that is known at run time only. Small ones need no memory of
// their own.
class Variable
{
public:
    explicit Variable(QMetaType type, const void *copied = nullptr)
        : m_type(type)
    {
        const bool fits = type.sizeOf() <= static_cast<qsizetype>(m_place.size()) &&
                          type.alignOf() <= static_cast<qsizetype>(alignof(std::max_align_t));
        m_data = fits ? type.construct(m_place.data(), copied) : type.create(copied);
    }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;
    ~Variable()
    {
        if (m_data == m_place.data())
            m_type.destruct(m_data);
        else
            m_type.destroy(m_data);
    }

    QMetaType type() const { return m_type; }
    void *data() { return m_data; }

private:
    alignas(std::max_align_t) std::array<std::byte, 32> m_place;
    QMetaType m_type;
    void *m_data;
};
