#include "tfbandtreebuilder.h"

#include "mulittable/tfheaderdatastruct.h"
#include "records/tfcategories.h"

#include <QHash>

#include <memory>
#include <vector>

namespace {
const QString TopLevel = QStringLiteral("0");

bool isTopLevel(const HeaderFieldInfo &field)
{
    return field.ownerBand.isEmpty() || field.ownerBand == TopLevel;
}

/// The nodes of the list, until each has found its parent.
class Forest
{
public:
    void add(const HeaderFieldInfo &field)
    {
        const int index = int(m_nodes.size());
        m_nodes.push_back(std::make_unique<TFTreeStruct>(field));
        if (!m_indexOfName.contains(field.fieldName))
            m_indexOfName.insert(field.fieldName, index);
    }

    void moveUnder(TFTreeStruct &root)
    {
        link();
        root.clearChildren();
        for (const int index : m_roots) {
            std::unique_ptr<TFTreeStruct> band = std::move(m_nodes[size_t(index)]);
            attachBelow(*band, index);
            band->updateChildUnit();
            root.addChild(band.release());
        }
    }

private:
    void link()
    {
        m_children.resize(m_nodes.size());
        for (int i = 0; i < int(m_nodes.size()); ++i) {
            const HeaderFieldInfo &field = m_nodes[size_t(i)]->info();
            if (isTopLevel(field)) {
                m_roots.push_back(i);
                continue;
            }
            const int owner = m_indexOfName.value(field.ownerBand, -1);
            if (owner >= 0)
                m_children[size_t(owner)].push_back(i);
        }
    }

    void attachBelow(TFTreeStruct &band, int bandIndex)
    {
        struct Step
        {
            TFTreeStruct *node;
            int index;
            int level;
        };
        std::vector<Step> open{{&band, bandIndex, 1}};
        while (!open.empty()) {
            const Step step = open.back();
            open.pop_back();
            const std::vector<int> &children = m_children[size_t(step.index)];
            if (step.level == TFBandTreeBuilder::DeepestBand && !children.empty()) {
                qCWarning(lcConfig) << "bands nest too deep:" << step.node->info().fieldName;
                continue;
            }
            for (const int child : children) {
                TFTreeStruct *node = m_nodes[size_t(child)].release();
                step.node->addChild(node);
                open.push_back({node, child, step.level + 1});
            }
        }
    }

    std::vector<std::unique_ptr<TFTreeStruct>> m_nodes;
    QHash<QString, int> m_indexOfName;
    std::vector<std::vector<int>> m_children;
    std::vector<int> m_roots;
};
} // namespace

void TFBandTreeBuilder::build(TFTreeStruct &root, const QList<HeaderFieldInfo> &fields,
                              const std::optional<HeaderFieldInfo> &groupColumn)
{
    Forest forest;
    for (const HeaderFieldInfo &field : fields) {
        if (field.visible)
            forest.add(field);
    }
    if (groupColumn)
        forest.add(*groupColumn);
    forest.moveUnder(root);
}

HeaderFieldInfo TFBandTreeBuilder::groupColumn(const QString &groupFields)
{
    HeaderFieldInfo column;
    column.fieldName = groupFields;
    column.caption = groupFields;
    column.level = 1;
    return column;
}
