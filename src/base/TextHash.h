#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include <functional>
#include <string_view>

namespace ORVTListview {

// A text as the key of a hash. It is hashed by the standard library: the toolkit's own code for
// short texts takes some hundred nanoseconds instead of ten where it uses the vectors of
// newer processors.
class TextKey
{
public:
    TextKey(const QString &text) // lets tables be asked for a text
        : m_text(text)
    {
    }

    const QString &text() const { return m_text; }

    friend bool operator==(const TextKey &a, const TextKey &b) noexcept
    {
        return a.m_text == b.m_text;
    }

    friend size_t qHash(const TextKey &key, size_t seed = 0) noexcept
    {
        const std::u16string_view text(reinterpret_cast<const char16_t *>(key.m_text.constData()),
                                       static_cast<size_t>(key.m_text.size()));
        return std::hash<std::u16string_view>()(text) ^ seed;
    }

private:
    QString m_text;
};

template <typename Value>
using TextHash = QHash<TextKey, Value>;

} // namespace ORVTListview
