<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>Qtitan::GridBase</name>
    <message>
        <source>无数据</source>
        <translation>No data</translation>
    </message>
    <message>
        <source>未分组</source>
        <translation>Not grouped</translation>
    </message>
    <message>
        <source>分组: %1</source>
        <translation>Grouped by: %1</translation>
    </message>
    <message>
        <source>升序</source>
        <translation>Sort ascending</translation>
    </message>
    <message>
        <source>降序</source>
        <translation>Sort descending</translation>
    </message>
    <message>
        <source>原始顺序</source>
        <translation>Original order</translation>
    </message>
    <message>
        <source>左移</source>
        <translation>Move left</translation>
    </message>
    <message>
        <source>右移</source>
        <translation>Move right</translation>
    </message>
    <message>
        <source>列: %1</source>
        <translation>Column: %1</translation>
    </message>
    <message>
        <source>按此列分组</source>
        <translation>Group by this column</translation>
    </message>
    <message>
        <source>隐藏此列</source>
        <translation>Hide this column</translation>
    </message>
    <message>
        <source>显示列</source>
        <translation>Columns</translation>
    </message>
    <message>
        <source>展开全部</source>
        <translation>Expand all</translation>
    </message>
    <message>
        <source>折叠全部</source>
        <translation>Collapse all</translation>
    </message>
    <message>
        <source>取消分组</source>
        <translation>Ungroup</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>复制(含表头)</source>
        <translation>Copy with header</translation>
    </message>
    <message>
        <source>复制单元格</source>
        <translation>Copy cell</translation>
    </message>
    <message>
        <source>全选</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>查找...</source>
        <translation>Find...</translation>
    </message>
    <message>
        <source>自适应列宽</source>
        <translation>Fit column width</translation>
    </message>
    <message>
        <source>全部自适应列宽</source>
        <translation>Fit all columns</translation>
    </message>
    <message>
        <source>只显示匹配行</source>
        <translation>Matching rows only</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>查找</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>上一个</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>下一个</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>正在查找...</source>
        <translation>Searching...</translation>
    </message>
    <message>
        <source>未找到</source>
        <translation>Not found</translation>
    </message>
</context>
</TS>
