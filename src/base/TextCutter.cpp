#include "base/TextCutter.h"

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

constexpr qsizetype blockLength = 4096;
constexpr qsizetype longest = blockLength / 16; // so that a block's end wastes little

} // namespace

QString TextCutter::cut(qsizetype start, qsizetype length)
{
    if (length == 0 || length > longest)
        return m_text.sliced(start, length).toString();
    if (!holds(start, length))
        begin(start);
    QString::DataPointer part = m_block.data_ptr();
    part.setBegin(part.data() + (start - m_start));
    part.size = length;
    m_units[start - m_start + length] = QChar();
    return QString(std::move(part));
}

bool TextCutter::holds(qsizetype start, qsizetype length) const
{
    return m_units && start - m_start + length < m_block.size();
}

void TextCutter::begin(qsizetype start)
{
    const QStringView part = m_text.sliced(start, std::min(blockLength, m_text.size() - start));
    m_block = QString(part.size() + 1, Qt::Uninitialized);
    m_units = m_block.data();
    std::copy(part.begin(), part.end(), m_units);
    m_start = start;
}

} // namespace ORVTListview
