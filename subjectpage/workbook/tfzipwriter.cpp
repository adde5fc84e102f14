#include "tfzipwriter.h"

#include <QIODevice>

#include <minizip/zip.h>

#include <utility>

namespace {
constexpr int Level = Z_DEFAULT_COMPRESSION;
constexpr uLong FirstOfJanuary1980 = (1 << 21) | (1 << 16); ///< as archives write dates

QIODevice &deviceOf(voidpf stream)
{
    return *static_cast<QIODevice *>(stream);
}

bool seek(QIODevice &device, ZPOS64_T offset, int origin)
{
    const qint64 base = origin == ZLIB_FILEFUNC_SEEK_CUR   ? device.pos()
                        : origin == ZLIB_FILEFUNC_SEEK_END ? device.size()
                                                           : 0;
    return device.seek(base + qint64(offset));
}

/// An archive that is only written is never read.
zlib_filefunc64_def functionsOf(QIODevice &device)
{
    zlib_filefunc64_def functions{};
    functions.opaque = &device;
    functions.zopen64_file = [](voidpf opaque, const void *, int) { return opaque; };
    functions.zread_file = [](voidpf, voidpf, void *, uLong) { return uLong(0); };
    functions.zwrite_file = [](voidpf, voidpf stream, const void *data, uLong size) {
        return uLong(qMax(qint64(0), deviceOf(stream).write(static_cast<const char *>(data), qint64(size))));
    };
    functions.ztell64_file = [](voidpf, voidpf stream) { return ZPOS64_T(deviceOf(stream).pos()); };
    functions.zseek64_file = [](voidpf, voidpf stream, ZPOS64_T offset, int origin) {
        return seek(deviceOf(stream), offset, origin) ? 0L : -1L;
    };
    functions.zclose_file = [](voidpf, voidpf) { return 0; };
    functions.zerror_file = [](voidpf, voidpf) { return 0; };
    return functions;
}
} // namespace

TFZipWriter::TFZipWriter(QIODevice &device)
{
    zlib_filefunc64_def functions = functionsOf(device);
    m_zip = zipOpen2_64("", APPEND_STATUS_CREATE, nullptr, &functions);
    m_isGood = m_zip;
}

TFZipWriter::~TFZipWriter()
{
    close();
}

void TFZipWriter::beginPart(const char *name, bool mayBeLarge)
{
    endPart();
    if (!m_isGood)
        return;
    zip_fileinfo info{};
    info.dosDate = FirstOfJanuary1980;
    m_isGood = zipOpenNewFileInZip64(m_zip, name, &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, Level,
                                     mayBeLarge) == ZIP_OK;
    m_isInPart = m_isGood;
}

void TFZipWriter::write(const QByteArray &data)
{
    m_isGood = m_isGood && zipWriteInFileInZip(m_zip, data.constData(), unsigned(data.size())) == ZIP_OK;
}

void TFZipWriter::endPart()
{
    if (std::exchange(m_isInPart, false) && zipCloseFileInZip(m_zip) != ZIP_OK)
        m_isGood = false;
}

void TFZipWriter::close()
{
    endPart();
    if (m_zip && zipClose(std::exchange(m_zip, nullptr), nullptr) != ZIP_OK)
        m_isGood = false;
}
