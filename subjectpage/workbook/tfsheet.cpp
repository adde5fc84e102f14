#include "tfsheet.h"

namespace {
constexpr int LetterCount = 26;
constexpr TFSheet::Look Looks[TFSheet::StyleCount] = {
    {true, nullptr},         {false, nullptr},      {false, "#,##0.00######;-#,##0.00######"},
    {false, "#,##0;-#,##0"}, {false, "yyyy-MM-dd"},
};
} // namespace

TFSheet::Look TFSheet::look(Style style)
{
    return Looks[style];
}

QString TFSheet::columnName(int col)
{
    QString letters;
    for (int rest = col; rest > 0; rest = (rest - 1) / LetterCount)
        letters.prepend(QChar('A' + (rest - 1) % LetterCount));
    return letters;
}
