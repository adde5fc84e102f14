#pragma once

#include <QByteArray>

namespace service {

/// Whether the value of an Accept-Encoding header takes gzip: `gzip` or `*`, not with `q=0`.
bool acceptsGzip(const QByteArray &acceptEncoding);

/// \a data in gzip's format, packed for speed; empty when there is no memory for it.
QByteArray gzipped(const QByteArray &data);

} // namespace service
