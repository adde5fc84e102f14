<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ActivityPanel</name>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>运行情况</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Pick a request to see what it asked</source>
        <translation>选择一条请求，查看其内容</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>AddressBar</name>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Address of a page, view://...</source>
        <translation>页面地址，view://...</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>皮肤</translation>
    </message>
    <message>
        <source>Composite screens</source>
        <translation>组合屏</translation>
    </message>
</context>
<context>
    <name>ArgumentsDialog</name>
    <message>
        <source>Components that follow an argument show its value at once.</source>
        <translation>跟随某个参数的组件会立即显示它的新值。</translation>
    </message>
    <message>
        <source>There are no global arguments yet.</source>
        <translation>还没有全局参数。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>View of a component</source>
        <translation>取自组件</translation>
    </message>
    <message>
        <source>Global arguments</source>
        <translation>全局参数</translation>
    </message>
    <message>
        <source>Sets the argument to a view that a component of this screen shows</source>
        <translation>把参数设为本屏某个组件正在显示的视图</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Choose the argument that the component follows.</source>
        <translation>请选择组件要跟随的参数。</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>绑定</translation>
    </message>
</context>
<context>
    <name>ArgumentsModel</name>
    <message>
        <source>Row %1 has no name.</source>
        <translation>第 %1 行没有名称。</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is there twice.</source>
        <translation>名称“%1”重复。</translation>
    </message>
    <message>
        <source>Argument %1</source>
        <translation>参数%1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>CellStrip</name>
    <message>
        <source>Settings of the component (Ctrl+P)</source>
        <translation>组件设置 (Ctrl+P)</translation>
    </message>
    <message>
        <source>Add a component at the right</source>
        <translation>在右侧添加组件</translation>
    </message>
    <message>
        <source>Add a component below</source>
        <translation>在下方添加组件</translation>
    </message>
    <message>
        <source>Remove the component</source>
        <translation>移除组件</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>ComponentCatalog</name>
    <message>
        <source>No plug-in offers components</source>
        <translation>没有插件提供组件</translation>
    </message>
</context>
<context>
    <name>EmptyScreen</name>
    <message>
        <source>This screen is empty</source>
        <translation>组合屏是空的</translation>
    </message>
    <message>
        <source>No plug-in offers components.</source>
        <translation>没有插件提供组件。</translation>
    </message>
    <message>
        <source>Place a first component; more go beside and below it.</source>
        <translation>请放入第一个组件，之后可在其右侧和下方继续添加。</translation>
    </message>
</context>
<context>
    <name>EndpointDialog</name>
    <message>
        <source>Demonstration data on this computer</source>
        <translation>本机演示数据</translation>
    </message>
    <message>
        <source>Data service at</source>
        <translation>数据服务地址</translation>
    </message>
    <message>
        <source>Data service</source>
        <translation>数据服务</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>产品</translation>
    </message>
    <message>
        <source>Access token</source>
        <translation>访问令牌</translation>
    </message>
    <message>
        <source>An address looks like http://server:8080</source>
        <translation>地址形如 http://server:8080</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>&amp;New tab</source>
        <translation>新建标签页(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Close tab</source>
        <translation>关闭标签页(&amp;C)</translation>
    </message>
    <message>
        <source>Ne&amp;xt tab</source>
        <translation>下一个标签页(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Previous tab</source>
        <translation>上一个标签页(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Home page</source>
        <translation>主页(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Open anew</source>
        <translation>重新打开(&amp;O)</translation>
    </message>
    <message>
        <source>Go to &amp;address</source>
        <translation>转到地址栏(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Data service...</source>
        <translation>数据服务(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>暮色</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>No plug-in has a home page.</source>
        <translation>没有插件提供主页。</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1</source>
        <translation>本机没有程序可以打开 %1</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>页面(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>专题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Skin</source>
        <translation>皮肤(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>About the terminal</source>
        <translation>关于终端</translation>
    </message>
    <message>
        <source>Terminal for pages of financial data, version %1</source>
        <translation>金融数据终端，版本 %1</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>金融数据终端</translation>
    </message>
</context>
<context>
    <name>MessageModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
</context>
<context>
    <name>PageFactory</name>
    <message>
        <source>No plug-in shows pages of the kind %1://%2</source>
        <translation>没有插件可以显示 %1://%2 这类页面</translation>
    </message>
    <message>
        <source>The plug-in registered no page class under %1</source>
        <translation>插件没有以 %1 注册页面类</translation>
    </message>
    <message>
        <source>%1 is no page</source>
        <translation>%1 不是页面</translation>
    </message>
</context>
<context>
    <name>PluginInfo</name>
    <message>
        <source>not a plug-in</source>
        <translation>不是插件</translation>
    </message>
    <message>
        <source>interface &quot;%1&quot; where &quot;%2&quot; is expected</source>
        <translation>接口为“%1”，应为“%2”</translation>
    </message>
    <message>
        <source>the metadata has no text under &quot;%1&quot;</source>
        <translation>元数据缺少“%1”</translation>
    </message>
    <message>
        <source>the metadata has no version number under &quot;%1&quot;</source>
        <translation>元数据的“%1”不是版本号</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>无效</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>已读取</translation>
    </message>
    <message>
        <source>Resolved</source>
        <translation>已解析</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>已加载</translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation>已启动</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
</context>
<context>
    <name>PluginManager</name>
    <message>
        <source>a plug-in of this name was found before, in %1</source>
        <translation>同名插件已存在：%1</translation>
    </message>
    <message>
        <source>needs %1 %2, which is not there</source>
        <translation>需要 %1 %2，但未找到</translation>
    </message>
    <message>
        <source>depends on itself by way of %1</source>
        <translation>通过 %1 依赖自身</translation>
    </message>
    <message>
        <source>needs %1, which does not work: %2</source>
        <translation>需要 %1，但它不可用：%2</translation>
    </message>
    <message>
        <source>needs %1, which did not start</source>
        <translation>需要 %1，但它未能启动</translation>
    </message>
    <message>
        <source>its class is not derived from IPlugin</source>
        <translation>其入口类不是 IPlugin 的派生类</translation>
    </message>
    <message>
        <source>it refused to start and gave no reason</source>
        <translation>拒绝启动，未说明原因</translation>
    </message>
</context>
<context>
    <name>RequestModel</name>
    <message>
        <source>done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>请求内容</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>毫秒</translation>
    </message>
</context>
<context>
    <name>ScreenBar</name>
    <message>
        <source>Saved at %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>未能保存</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>有改动</translation>
    </message>
    <message>
        <source>Add component</source>
        <translation>添加组件</translation>
    </message>
    <message>
        <source>Global arguments...</source>
        <translation>全局参数...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>ScreenCell</name>
    <message>
        <source>No plug-in offers the component %1. Its settings are kept.</source>
        <translation>没有插件提供组件 %1，它的设置会保留。</translation>
    </message>
</context>
<context>
    <name>ScreenFile</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>too large for a composite screen</source>
        <translation>文件过大，不是组合屏</translation>
    </message>
    <message>
        <source>not an ordinary file</source>
        <translation>不是普通文件</translation>
    </message>
</context>
<context>
    <name>ScreenFormat</name>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>this is no composite screen</source>
        <translation>不是组合屏</translation>
    </message>
    <message>
        <source>a number is expected</source>
        <translation>应为数字</translation>
    </message>
    <message>
        <source>written by a newer terminal</source>
        <translation>由更新版本的终端写成</translation>
    </message>
    <message>
        <source>a text is expected</source>
        <translation>应为文本</translation>
    </message>
    <message>
        <source>an argument has no name</source>
        <translation>有参数没有名称</translation>
    </message>
    <message>
        <source>a map is expected</source>
        <translation>应为键值表</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>嵌套过深</translation>
    </message>
    <message>
        <source>one of &quot;class&quot;, &quot;row&quot; and &quot;column&quot; is expected</source>
        <translation>应有 &quot;class&quot;、&quot;row&quot;、&quot;column&quot; 之一</translation>
    </message>
    <message>
        <source>the name of a component is expected</source>
        <translation>应为组件名称</translation>
    </message>
    <message>
        <source>a list of cells is expected</source>
        <translation>应为单元格列表</translation>
    </message>
    <message>
        <source>a positive number is expected for each cell</source>
        <translation>每个单元格应有一个正数</translation>
    </message>
</context>
<context>
    <name>ScreenListDialog</name>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Composite screens</source>
        <translation>组合屏</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Last change</source>
        <translation>最后修改</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>%1, damaged</source>
        <translation>%1，已损坏</translation>
    </message>
    <message>
        <source>Delete %1? This cannot be undone.</source>
        <translation>删除“%1”？删除后无法恢复。</translation>
    </message>
</context>
<context>
    <name>ScreenMenu</name>
    <message>
        <source>&amp;Composite screens</source>
        <translation>组合屏(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;New screen</source>
        <translation>新建组合屏(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Save screen</source>
        <translation>保存组合屏(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Global arguments...</source>
        <translation>全局参数(&amp;G)...</translation>
    </message>
    <message>
        <source>&amp;Manage screens...</source>
        <translation>管理组合屏(&amp;M)...</translation>
    </message>
    <message>
        <source>&amp;Add component</source>
        <translation>添加组件(&amp;A)</translation>
    </message>
</context>
<context>
    <name>ScreenTab</name>
    <message>
        <source>%1 is damaged; what can be read is open, and the file is kept when the screen is saved. %2</source>
        <translation>%1 已损坏：能读出的部分已打开，保存时原文件会另存保留。%2</translation>
    </message>
    <message>
        <source>The screen cannot be saved. %1</source>
        <translation>组合屏无法保存。%1</translation>
    </message>
    <message>
        <source>What lay in the file of the screen before is kept as %1</source>
        <translation>组合屏文件的原有内容已另存为 %1</translation>
    </message>
    <message>
        <source>Composite screen</source>
        <translation>组合屏</translation>
    </message>
    <message>
        <source>%1 cannot be saved. Close it and lose the changes?</source>
        <translation>“%1”无法保存。要关闭并放弃改动吗？</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>另有 %1 处</translation>
    </message>
</context>
<context>
    <name>ScreenView</name>
    <message>
        <source>Remove %1? Its settings are lost.</source>
        <translation>移除“%1”？它的设置会丢失。</translation>
    </message>
    <message>
        <source>Composite screen</source>
        <translation>组合屏</translation>
    </message>
</context>
<context>
    <name>Screens</name>
    <message>
        <source>Screen %1</source>
        <translation>组合屏 %1</translation>
    </message>
</context>
<context>
    <name>ServiceProcess</name>
    <message>
        <source>the data service gave no address within %1 s</source>
        <translation>数据服务在 %1 秒内没有给出地址</translation>
    </message>
    <message>
        <source>the data service is not there: %1</source>
        <translation>找不到数据服务程序：%1</translation>
    </message>
    <message>
        <source>the demonstration database is not there: %1</source>
        <translation>找不到演示数据库：%1</translation>
    </message>
    <message>
        <source>the folder of view documents is not there: %1</source>
        <translation>找不到视图文档目录：%1</translation>
    </message>
    <message>
        <source>the data service cannot be started: %1</source>
        <translation>数据服务无法启动：%1</translation>
    </message>
    <message>
        <source>the data service ended with status %1: %2</source>
        <translation>数据服务已退出，状态 %1：%2</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Not all plug-ins work. %1</source>
        <translation>部分插件不可用。%1</translation>
    </message>
    <message>
        <source>No plug-in was found in %1</source>
        <translation>未找到插件：%1</translation>
    </message>
    <message>
        <source>Starting the data service...</source>
        <translation>正在启动数据服务...</translation>
    </message>
    <message>
        <source>No page is open. Ctrl+T opens the home page.</source>
        <translation>没有打开的页面。按 Ctrl+T 打开主页。</translation>
    </message>
    <message>
        <source>There is no data service: %1</source>
        <translation>没有可用的数据服务：%1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
</context>
<context>
    <name>VariantJson</name>
    <message>
        <source>%1: a value of type %2 cannot be kept</source>
        <translation>%1：类型 %2 的值无法保存</translation>
    </message>
    <message>
        <source>%1: a whole number of 64 bits is expected as a text</source>
        <translation>%1：应为写成文本的 64 位整数</translation>
    </message>
</context>
</TS>
