#include "tfrowsreply.h"

#include "records/tfrawrowsreader.h"

#include <utility>

namespace {
/// Finds the array of rows and reads it; walks over all the rest, so that no second array of that name is
/// left behind.
class RowsFinder
{
public:
    explicit RowsFinder(const QByteArray &json)
        : m_json(json)
        , m_cursor(json.constData(), json.constData() + json.size())
    {}

    bool find()
    {
        bool hasPayload = false;
        const bool isRead = m_cursor.forEachMember([&](const TFJsonCursor::Text &key) {
            if (!isNamed(key, "data"))
                return !key.isEscaped && m_cursor.skipValue();
            if (std::exchange(hasPayload, true))
                return false;
            return m_cursor.peek() == '{' ? readPayload() : m_cursor.skipValue();
        });
        return isRead && m_begin;
    }
    TFRawRowsPtr rows() const { return m_reader.rows(); }
    QByteArray jsonWithoutRows() const
    {
        return m_json.left(int(m_begin - m_json.constData())) + "[]" +
               m_json.mid(int(m_end - m_json.constData()));
    }

private:
    static bool isNamed(const TFJsonCursor::Text &key, const char *name)
    {
        return QByteArray::fromRawData(key.begin, key.length) == name;
    }

    bool readPayload()
    {
        return m_cursor.forEachMember([this](const TFJsonCursor::Text &key) {
            if (!isNamed(key, "Data"))
                return !key.isEscaped && m_cursor.skipValue();
            return !m_begin && readRows();
        });
    }

    bool readRows()
    {
        m_cursor.peek();
        m_begin = m_cursor.at();
        if (!m_reader.read(m_cursor))
            return false;
        m_end = m_cursor.at();
        return true;
    }

    const QByteArray &m_json;
    TFJsonCursor m_cursor;
    TFRawRowsReader m_reader;
    const char *m_begin = nullptr;
    const char *m_end = nullptr;
};
} // namespace

TFRawRowsPtr TFRowsReply::split(const QByteArray &json, QByteArray &rest)
{
    RowsFinder finder(json);
    if (!finder.find())
        return nullptr;
    rest = finder.jsonWithoutRows();
    return finder.rows();
}

bool TFRowsReply::read(const QByteArray &json, TFRowsReply &out)
{
    QByteArray rest;
    const TFRawRowsPtr rows = split(json, rest);
    if (!TFJSP::parseResponse(rows ? rest : json, out.envelope))
        return false;
    out.rows = rows;
    return true;
}
