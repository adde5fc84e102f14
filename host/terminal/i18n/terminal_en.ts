<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ActivityPanel</name>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>What happened</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>Requests</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnings</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Pick a request to see what it asked</source>
        <translation>Pick a request to see what it asked</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
</context>
<context>
    <name>AddressBar</name>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Address of a page, view://...</source>
        <translation>Address of a page, view://...</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>Skin</translation>
    </message>
</context>
<context>
    <name>EndpointDialog</name>
    <message>
        <source>Demonstration data on this computer</source>
        <translation>Demonstration data on this computer</translation>
    </message>
    <message>
        <source>Data service at</source>
        <translation>Data service at</translation>
    </message>
    <message>
        <source>Data service</source>
        <translation>Data service</translation>
    </message>
    <message>
        <source>User</source>
        <translation>User</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>Product</translation>
    </message>
    <message>
        <source>Access token</source>
        <translation>Access token</translation>
    </message>
    <message>
        <source>An address looks like http://server:8080</source>
        <translation>An address looks like http://server:8080</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>&amp;New tab</source>
        <translation>&amp;New tab</translation>
    </message>
    <message>
        <source>&amp;Close tab</source>
        <translation>&amp;Close tab</translation>
    </message>
    <message>
        <source>Ne&amp;xt tab</source>
        <translation>Ne&amp;xt tab</translation>
    </message>
    <message>
        <source>&amp;Previous tab</source>
        <translation>&amp;Previous tab</translation>
    </message>
    <message>
        <source>&amp;Home page</source>
        <translation>&amp;Home page</translation>
    </message>
    <message>
        <source>&amp;Open anew</source>
        <translation>&amp;Open anew</translation>
    </message>
    <message>
        <source>Go to &amp;address</source>
        <translation>Go to &amp;address</translation>
    </message>
    <message>
        <source>&amp;Data service...</source>
        <translation>&amp;Data service...</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>White</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Twilight</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>No plug-in has a home page.</source>
        <translation>No plug-in has a home page.</translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1</source>
        <translation>Nothing on this computer opens %1</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>&amp;Page</translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation>&amp;Topics</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Skin</source>
        <translation>&amp;Skin</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>About the terminal</source>
        <translation>About the terminal</translation>
    </message>
    <message>
        <source>Terminal for pages of financial data, version %1</source>
        <translation>Terminal for pages of financial data, version %1</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
</context>
<context>
    <name>MessageModel</name>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
</context>
<context>
    <name>PageFactory</name>
    <message>
        <source>No plug-in shows pages of the kind %1://%2</source>
        <translation>No plug-in shows pages of the kind %1://%2</translation>
    </message>
    <message>
        <source>The plug-in registered no page class under %1</source>
        <translation>The plug-in registered no page class under %1</translation>
    </message>
    <message>
        <source>%1 is no page</source>
        <translation>%1 is no page</translation>
    </message>
</context>
<context>
    <name>PluginManager</name>
    <message>
        <source>a plug-in of this name was found before, in %1</source>
        <translation>a plug-in of this name was found before, in %1</translation>
    </message>
    <message>
        <source>needs %1 %2, which is not there</source>
        <translation>needs %1 %2, which is not there</translation>
    </message>
    <message>
        <source>depends on itself by way of %1</source>
        <translation>depends on itself by way of %1</translation>
    </message>
    <message>
        <source>needs %1, which does not work: %2</source>
        <translation>needs %1, which does not work: %2</translation>
    </message>
    <message>
        <source>needs %1, which did not start</source>
        <translation>needs %1, which did not start</translation>
    </message>
    <message>
        <source>its class is not derived from IPlugin</source>
        <translation>its class is not derived from IPlugin</translation>
    </message>
    <message>
        <source>it refused to start and gave no reason</source>
        <translation>it refused to start and gave no reason</translation>
    </message>
</context>
<context>
    <name>PluginInfo</name>
    <message>
        <source>not a plug-in</source>
        <translation>not a plug-in</translation>
    </message>
    <message>
        <source>interface &quot;%1&quot; where &quot;%2&quot; is expected</source>
        <translation>interface &quot;%1&quot; where &quot;%2&quot; is expected</translation>
    </message>
    <message>
        <source>the metadata has no text under &quot;%1&quot;</source>
        <translation>the metadata has no text under &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the metadata has no version number under &quot;%1&quot;</source>
        <translation>the metadata has no version number under &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>Invalid</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Read</translation>
    </message>
    <message>
        <source>Resolved</source>
        <translation>Resolved</translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation>Loaded</translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation>Initialized</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
</context>
<context>
    <name>RequestModel</name>
    <message>
        <source>done</source>
        <translation>done</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Path</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>Asked for</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
</context>
<context>
    <name>ServiceProcess</name>
    <message>
        <source>the data service gave no address within %1 s</source>
        <translation>the data service gave no address within %1 s</translation>
    </message>
    <message>
        <source>the data service is not there: %1</source>
        <translation>the data service is not there: %1</translation>
    </message>
    <message>
        <source>the demonstration database is not there: %1</source>
        <translation>the demonstration database is not there: %1</translation>
    </message>
    <message>
        <source>the folder of view documents is not there: %1</source>
        <translation>the folder of view documents is not there: %1</translation>
    </message>
    <message>
        <source>the data service cannot be started: %1</source>
        <translation>the data service cannot be started: %1</translation>
    </message>
    <message>
        <source>the data service ended with status %1: %2</source>
        <translation>the data service ended with status %1: %2</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Not all plug-ins work. %1</source>
        <translation>Not all plug-ins work. %1</translation>
    </message>
    <message>
        <source>No plug-in was found in %1</source>
        <translation>No plug-in was found in %1</translation>
    </message>
    <message>
        <source>Starting the data service...</source>
        <translation>Starting the data service...</translation>
    </message>
    <message>
        <source>No page is open. Ctrl+T opens the home page.</source>
        <translation>No page is open. Ctrl+T opens the home page.</translation>
    </message>
    <message>
        <source>There is no data service: %1</source>
        <translation>There is no data service: %1</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
</context>
</TS>
