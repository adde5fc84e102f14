#pragma once

#include "tfjsoncursor.h"
#include "tfrawrows.h"

#include <QByteArray>
#include <QHash>
#include <QPair>

#include <vector>

/// Reads an array of rows straight from its JSON text, without a document in between.
///
/// Gives the same rows as the toolkit's parser and TFRawRows::fromJson() would. What it does not read by
/// itself (long numbers, numbers with an exponent, nested values, escapes in texts beyond ASCII) it hands to
/// that parser, value by value.
class TFRawRowsReader
{
public:
    TFRawRowsReader();

    /// Reads the array at \a cursor. False, with the place of the cursor undefined, where it is no array of
    /// objects or not plainly written; the whole text must then go through the toolkit's parser.
    bool read(TFJsonCursor &cursor);
    TFRawRowsPtr rows() const { return m_rows; }

private:
    /// The keys of a row so far. A row's keys are a way from the root of a tree of nodes, so that rows with
    /// the same keys end at the same node, and the key expected next is the one that came last time.
    struct Node
    {
        QByteArray key; ///< with its quotes, as it stands in the text
        int keyIndex = -1;
        int before = -1;
        int next = -1; ///< the node that followed last
        int shape = -1;
    };

    bool readRow(TFJsonCursor &cursor);
    bool readKey(TFJsonCursor &cursor, int &node);
    bool follow(int &node, const QByteArray &key);
    int indexOfKey(const QByteArray &key);
    int shapeOf(int node);
    bool readValue(TFJsonCursor &cursor);
    bool readText(TFJsonCursor &cursor);
    bool readNumber(TFJsonCursor &cursor);
    bool readLong(const char *begin, const char *end);
    void appendDecimal(qint64 mantissa, int decimals);
    bool readOther(const char *begin, const char *end);

    std::shared_ptr<TFRawRows> m_rows;
    std::vector<Node> m_nodes;
    QHash<QPair<int, int>, int> m_followers; ///< node by the node before it and its key
    QHash<QByteArray, int> m_keyIndexes;
    QStringList m_keys;
    QString m_text; ///< the unescaped text at hand
};
