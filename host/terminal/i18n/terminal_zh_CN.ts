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
</TS>
