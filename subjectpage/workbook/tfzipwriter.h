#pragma once

#include <QByteArray>
#include <QtGlobal>

class QIODevice;

/// Writes an archive, part after part, to a device that is open and can seek. Holds nothing back; the same
/// parts give the same bytes.
class TFZipWriter
{
public:
    explicit TFZipWriter(QIODevice &device);
    ~TFZipWriter();
    Q_DISABLE_COPY(TFZipWriter)

    /// Begins the part \a name; what is written from now on belongs to it. A part that may grow beyond 4 GB
    /// must say so; some readers stumble over others that do.
    void beginPart(const char *name, bool mayBeLarge = false);
    void write(const QByteArray &data);
    /// Ends the archive. It is whole when isGood() then.
    void close();
    /// False once anything failed; what is written after that goes nowhere.
    bool isGood() const { return m_isGood; }

private:
    void endPart();

    void *m_zip;
    bool m_isInPart = false;
    bool m_isGood;
};
