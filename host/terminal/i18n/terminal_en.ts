<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ActivityPanel</name>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What happened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requests</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick a request to see what it asked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddressBar</name>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address of a page, view://...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skin</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EndpointDialog</name>
    <message>
        <source>Demonstration data on this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data service at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access token</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An address looks like http://server:8080</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>&amp;New tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Previous tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Home page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to &amp;address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Data service...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>No plug-in has a home page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing on this computer opens %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Topics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About the terminal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terminal for pages of financial data, version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageModel</name>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Category</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageFactory</name>
    <message>
        <source>No plug-in shows pages of the kind %1://%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in registered no page class under %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginManager</name>
    <message>
        <source>a plug-in of this name was found before, in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>needs %1 %2, which is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>depends on itself by way of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>needs %1, which does not work: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>needs %1, which did not start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its class is not derived from IPlugin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it refused to start and gave no reason</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginSpec</name>
    <message>
        <source>not a plug-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>interface &quot;%1&quot; where &quot;%2&quot; is expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the metadata has no text under &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the metadata has no version number under &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initialized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RequestModel</name>
    <message>
        <source>done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ms</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServiceProcess</name>
    <message>
        <source>the data service gave no address within %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the data service is not there: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the demonstration database is not there: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder of view documents is not there: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the data service cannot be started: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the data service ended with status %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Not all plug-ins work. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No plug-in was found in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting the data service...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No page is open. Ctrl+T opens the home page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no data service: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
