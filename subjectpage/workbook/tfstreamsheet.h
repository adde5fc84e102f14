#pragma once

#include "tfsheet.h"
#include "tfzipwriter.h"

#include <QByteArray>
#include <QStringList>

#include <map>
#include <vector>

/// A workbook of one sheet that goes to a device as it is filled: nothing but the header is kept. Numbers are
/// written so that they read back as the same double.
class TFStreamSheet : public TFSheet
{
public:
    /// \a device must be open, able to seek, and live longer.
    explicit TFStreamSheet(QIODevice &device);

    void writeText(int row, int col, const QString &text, Style style) override;
    void writeNumber(int row, int col, double value, Style style) override;
    void writeBool(int row, int col, bool value, Style style) override;
    void writeBlank(int row, int col, Style style) override;
    void merge(int row, int first, int last) override;
    void beginData(int firstRow, int rows, int columns, double width) override;
    bool isGood() const override { return m_zip.isGood(); }

    /// Ends sheet and workbook; true when all of it went to the device.
    bool finish();

private:
    void writeCell(int row, int col, Style style, const char *type, const QByteArray &content);
    void appendCell(QByteArray &out, int col, Style style, const char *type, const QByteArray &content);
    void beginRow();
    void endRow();
    void appendHeader();
    void appendMerges();
    int lastHeaderColumn() const;
    void flush();

    TFZipWriter m_zip;
    std::map<int, std::map<int, QByteArray>> m_header; ///< cells by row and column
    QStringList m_merges;
    std::vector<QByteArray> m_columnNames; ///< as far as they were needed
    QByteArray m_out;                      ///< on its way into the archive
    QByteArray m_content;                  ///< of the cell at hand
    QByteArray m_rowName;
    int m_row = 0; ///< of the cell at hand
    bool m_isInData = false;
    bool m_isInRow = false;
};
