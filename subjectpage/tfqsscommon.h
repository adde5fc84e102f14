#pragma once

#include <QColor>
#include <QObject>
#include <QUrl>

#include <array>

/// Skin values that code paints with and that no style sheet can reach directly.
///
/// The page's style sheet sets them as properties of the page, which hands them on here; delegates and models
/// read them. Until a skin has set a colour it is invalid. User-interface thread only.
class TFQssCommon : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QColor headerBorderColor READ headerBorderColor WRITE setHeaderBorderColor)
    Q_PROPERTY(QColor headerSplitColor READ headerSplitColor WRITE setHeaderSplitColor)
    Q_PROPERTY(QColor highlightColor READ highlightColor WRITE setHighlightColor)

public:
    /// The one instance, made at first use.
    static TFQssCommon *instance();

    /// Outer border of a header section.
    QColor headerBorderColor() const;
    void setHeaderBorderColor(const QColor &color);

    /// Line between two header sections.
    QColor headerSplitColor() const;
    void setHeaderSplitColor(const QColor &color);

    /// Background of the row under the mouse.
    QColor highlightColor() const;
    void setHighlightColor(const QColor &color);

private:
    TFQssCommon() = default;

    /// Places in m_colors; those before HeaderBorder are spare.
    enum ColorPlace { HeaderBorder = 5, HeaderSplit, Highlight, ColorCount };

    std::array<QUrl, 6> m_urls; ///< spare, always empty
    std::array<QColor, ColorCount> m_colors;
};
