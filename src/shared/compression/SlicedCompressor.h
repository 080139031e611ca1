#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <memory>

namespace ORVTListview::ModZlib {

// Compresses a text in as many steps as the caller likes, so that a long one can be
// compressed between two keys. The result is the same to the byte, wherever the
// text is cut. Each call raises Error when zlib fails, and
// std::bad_alloc for want of memory.
class SlicedCompressor
{
public:
    // The length of the whole text, in UTF-16 units.
    explicit SlicedCompressor(qsizetype length);
    ~SlicedCompressor();
    Q_DISABLE_COPY_MOVE(SlicedCompressor) // zlib keeps its address

    // Takes the text's next slice. False when the code page lacks one of its
    // characters: then there will be no result.
    bool add(QStringView slice);

    // After the last slice, once: the compressed text.
    QString finish();

private:
    void deflate(QByteArray bytes, int flush, int expected);

    struct Stream;
    std::unique_ptr<Stream> m_stream;
    qsizetype m_length;
};

} // namespace ORVTListview::ModZlib
