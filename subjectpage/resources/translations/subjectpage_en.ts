<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>QObject</name>
    <message>
        <source>元</source>
        <translation>yuan</translation>
    </message>
    <message>
        <source>百元</source>
        <translation>100 yuan</translation>
    </message>
    <message>
        <source>千元</source>
        <translation>1,000 yuan</translation>
    </message>
    <message>
        <source>万元</source>
        <translation>10,000 yuan</translation>
    </message>
    <message>
        <source>百万元</source>
        <translation>million yuan</translation>
    </message>
    <message>
        <source>亿元</source>
        <translation>100 million yuan</translation>
    </message>
    <message>
        <source>十亿元</source>
        <translation>billion yuan</translation>
    </message>
    <message>
        <source>股</source>
        <translation>shares</translation>
    </message>
    <message>
        <source>百股</source>
        <translation>100 shares</translation>
    </message>
    <message>
        <source>千股</source>
        <translation>1,000 shares</translation>
    </message>
    <message>
        <source>万股</source>
        <translation>10,000 shares</translation>
    </message>
    <message>
        <source>百万股</source>
        <translation>million shares</translation>
    </message>
    <message>
        <source>亿股</source>
        <translation>100 million shares</translation>
    </message>
    <message>
        <source>十亿股</source>
        <translation>billion shares</translation>
    </message>
    <message>
        <source>张</source>
        <translation>bonds</translation>
    </message>
    <message>
        <source>手（十张）</source>
        <translation>lots of 10</translation>
    </message>
    <message>
        <source>百张</source>
        <translation>100 bonds</translation>
    </message>
    <message>
        <source>万张</source>
        <translation>10,000 bonds</translation>
    </message>
    <message>
        <source>亿张</source>
        <translation>100 million bonds</translation>
    </message>
    <message>
        <source>份</source>
        <translation>units</translation>
    </message>
    <message>
        <source>百份</source>
        <translation>100 units</translation>
    </message>
    <message>
        <source>千份</source>
        <translation>1,000 units</translation>
    </message>
    <message>
        <source>万份</source>
        <translation>10,000 units</translation>
    </message>
    <message>
        <source>亿份</source>
        <translation>100 million units</translation>
    </message>
    <message>
        <source>十亿份</source>
        <translation>billion units</translation>
    </message>
    <message>
        <source>原始值</source>
        <translation>raw value</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>‰</source>
        <translation>‰</translation>
    </message>
    <message>
        <source>BP</source>
        <translation>BP</translation>
    </message>
    <message>
        <source>户</source>
        <translation>households</translation>
    </message>
    <message>
        <source>百户</source>
        <translation>100 households</translation>
    </message>
    <message>
        <source>万户</source>
        <translation>10,000 households</translation>
    </message>
    <message>
        <source>亿户</source>
        <translation>100 million households</translation>
    </message>
    <message>
        <source>次</source>
        <translation>times</translation>
    </message>
    <message>
        <source>倍</source>
        <translation>fold</translation>
    </message>
    <message>
        <source>年</source>
        <translation>years</translation>
    </message>
    <message>
        <source>家</source>
        <translation>firms</translation>
    </message>
    <message>
        <source>个</source>
        <translation>items</translation>
    </message>
    <message>
        <source>天</source>
        <translation>days</translation>
    </message>
    <message>
        <source>值</source>
        <translation>value</translation>
    </message>
    <message>
        <source>笔</source>
        <translation>deals</translation>
    </message>
    <message>
        <source>元/%</source>
        <translation>yuan/%</translation>
    </message>
</context>
<context>
    <name>TFCheckCombox</name>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
</context>
<context>
    <name>TFPaginationBar</name>
    <message>
        <source>首页</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>上一页</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>下一页</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>末页</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>当前页</source>
        <translation>Current page</translation>
    </message>
    <message>
        <source>每页行数</source>
        <translation>Rows per page</translation>
    </message>
    <message>
        <source>条/页</source>
        <translation>rows/page</translation>
    </message>
</context>
<context>
    <name>TFReportDateSimple</name>
    <message>
        <source>First Quarterly Report</source>
        <translation>First quarter</translation>
    </message>
    <message>
        <source>Second Quarterly Report</source>
        <translation>Second quarter</translation>
    </message>
    <message>
        <source>Semiannual Report</source>
        <translation>Half year</translation>
    </message>
    <message>
        <source>Third Quarterly Report</source>
        <translation>Third quarter</translation>
    </message>
    <message>
        <source>Forth Quarterly Report</source>
        <translation>Fourth quarter</translation>
    </message>
    <message>
        <source>Annual Report</source>
        <translation>Full year</translation>
    </message>
    <message>
        <source>一季度</source>
        <translation>First quarter</translation>
    </message>
    <message>
        <source>二季度</source>
        <translation>Second quarter</translation>
    </message>
    <message>
        <source>半年报</source>
        <translation>Half year</translation>
    </message>
    <message>
        <source>三季度</source>
        <translation>Third quarter</translation>
    </message>
    <message>
        <source>四季度</source>
        <translation>Fourth quarter</translation>
    </message>
    <message>
        <source>年度</source>
        <translation>Full year</translation>
    </message>
</context>
<context>
    <name>TFRightContainer</name>
    <message>
        <source>折叠或展开</source>
        <translation>Fold or unfold</translation>
    </message>
</context>
<context>
    <name>TFSearchWidget</name>
    <message>
        <source>搜索</source>
        <translation>Search</translation>
    </message>
</context>
<context>
    <name>TFSortView</name>
    <message>
        <source>Sort</source>
        <translation>Sort</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sort by</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Move up</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Move down</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>升序</source>
        <translation>Ascending</translation>
    </message>
    <message>
        <source>降序</source>
        <translation>Descending</translation>
    </message>
    <message>
        <source>排序列重复出现
请清空重复排序列后重试!</source>
        <translation>排序列重复出现
请清空重复排序列后重试!</translation>
    </message>
</context>
<context>
    <name>TFSubjectMainFrame</name>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
</context>
<context>
    <name>TFSubjectTableExport</name>
    <message>
        <source>正在取数据...</source>
        <translation>Fetching the rows...</translation>
    </message>
    <message>
        <source>正在整理数据...</source>
        <translation>Reading the rows...</translation>
    </message>
    <message>
        <source>新建工作簿</source>
        <translation>New workbook</translation>
    </message>
    <message>
        <source>正在写入...</source>
        <translation>Writing the rows...</translation>
    </message>
    <message>
        <source>正在保存...</source>
        <translation>Saving...</translation>
    </message>
</context>
<context>
    <name>TFSubjectTableExportProgress</name>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>TFSubjectTableWidget</name>
    <message>
        <source>加载中...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>无数据</source>
        <translation>No data</translation>
    </message>
</context>
<context>
    <name>TFSubjectSetting</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>Views</translation>
    </message>
    <message>
        <source>由全局参数选择视图</source>
        <translation>Have a global argument select the view</translation>
    </message>
</context>
</TS>
