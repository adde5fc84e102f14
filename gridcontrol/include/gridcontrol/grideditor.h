#pragma once

#include <gridcontrol/gridglobal.h>

#include <QObject>

namespace Qtitan {

/// Settings of the cells of one column, of the kind that its editor type names.
class GridEditorRepository : public QObject
{
    Q_OBJECT

public:
    explicit GridEditorRepository(QObject *parent = nullptr)
        : QObject(parent)
    {}

    virtual int editorType() const { return NoEditor; }

signals:
    void changed();
};

/// Settings of a column of texts.
class GridStringEditorRepository : public GridEditorRepository
{
    Q_OBJECT

public:
    using GridEditorRepository::GridEditorRepository;

    int editorType() const override { return StringEditor; }

    /// Shows the texts as links: in the link colour, underlined under the pointer, followed by a click and by
    /// Enter. A text of the form <a href="target">caption</a> shows its caption.
    bool hLink() const { return m_hLink; }
    void setHLink(bool on);

private:
    bool m_hLink = false;
};

} // namespace Qtitan
