#include "compression.h"

#include <QList>

#include <zlib.h>

namespace service {

namespace {

const int GzipWindow = 15 + 16; // 16 asks for gzip's head and tail
const int MemoryLevel = 9;

} // namespace

bool acceptsGzip(const QByteArray &acceptEncoding)
{
    for (const QByteArray &choice : acceptEncoding.toLower().split(',')) {
        const QList<QByteArray> parts = choice.split(';');
        const QByteArray name = parts.first().trimmed();
        if (name != "gzip" && name != "*")
            continue;
        const QByteArray weight = parts.value(1).trimmed();
        return !weight.startsWith("q=") || weight.mid(2).toDouble() > 0;
    }
    return false;
}

QByteArray gzipped(const QByteArray &data)
{
    z_stream stream{};
    if (::deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, GzipWindow, MemoryLevel, Z_DEFAULT_STRATEGY) !=
        Z_OK)
        return {};
    QByteArray packed(static_cast<int>(::deflateBound(&stream, static_cast<uLong>(data.size()))),
                      Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(data.constData()));
    stream.avail_in = static_cast<uInt>(data.size());
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    const bool isDone = ::deflate(&stream, Z_FINISH) == Z_STREAM_END;
    packed.resize(isDone ? static_cast<int>(stream.total_out) : 0);
    ::deflateEnd(&stream);
    return packed;
}

} // namespace service
