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
    <message>
        <source>Composite screens</source>
        <translation>Composite screens</translation>
    </message>
</context>
<context>
    <name>ArgumentsDialog</name>
    <message>
        <source>Components that follow an argument show its value at once.</source>
        <translation>Components that follow an argument show its value at once.</translation>
    </message>
    <message>
        <source>There are no global arguments yet.</source>
        <translation>There are no global arguments yet.</translation>
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
        <source>View of a component</source>
        <translation>View of a component</translation>
    </message>
    <message>
        <source>Global arguments</source>
        <translation>Global arguments</translation>
    </message>
    <message>
        <source>Sets the argument to a view that a component of this screen shows</source>
        <translation>Sets the argument to a view that a component of this screen shows</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Choose the argument that the component follows.</source>
        <translation>Choose the argument that the component follows.</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Follow</translation>
    </message>
</context>
<context>
    <name>ArgumentsModel</name>
    <message>
        <source>Row %1 has no name.</source>
        <translation>Row %1 has no name.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is there twice.</source>
        <translation>The name &quot;%1&quot; is there twice.</translation>
    </message>
    <message>
        <source>Argument %1</source>
        <translation>Argument %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
</context>
<context>
    <name>CellStrip</name>
    <message>
        <source>Settings of the component (Ctrl+P)</source>
        <translation>Settings of the component (Ctrl+P)</translation>
    </message>
    <message>
        <source>Add a component at the right</source>
        <translation>Add a component at the right</translation>
    </message>
    <message>
        <source>Add a component below</source>
        <translation>Add a component below</translation>
    </message>
    <message>
        <source>Remove the component</source>
        <translation>Remove the component</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
</context>
<context>
    <name>ComponentCatalog</name>
    <message>
        <source>No plug-in offers components</source>
        <translation>No plug-in offers components</translation>
    </message>
</context>
<context>
    <name>EmptyScreen</name>
    <message>
        <source>This screen is empty</source>
        <translation>This screen is empty</translation>
    </message>
    <message>
        <source>No plug-in offers components.</source>
        <translation>No plug-in offers components.</translation>
    </message>
    <message>
        <source>Place a first component; more go beside and below it.</source>
        <translation>Place a first component; more go beside and below it.</translation>
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
    <name>ScreenBar</name>
    <message>
        <source>Saved at %1</source>
        <translation>Saved at %1</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Not saved</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>Add component</source>
        <translation>Add component</translation>
    </message>
    <message>
        <source>Global arguments...</source>
        <translation>Global arguments...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
</context>
<context>
    <name>ScreenCell</name>
    <message>
        <source>No plug-in offers the component %1. Its settings are kept.</source>
        <translation>No plug-in offers the component %1. Its settings are kept.</translation>
    </message>
</context>
<context>
    <name>ScreenFile</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>too large for a composite screen</source>
        <translation>too large for a composite screen</translation>
    </message>
    <message>
        <source>not an ordinary file</source>
        <translation>not an ordinary file</translation>
    </message>
</context>
<context>
    <name>ScreenFormat</name>
    <message>
        <source>line %1</source>
        <translation>line %1</translation>
    </message>
    <message>
        <source>this is no composite screen</source>
        <translation>this is no composite screen</translation>
    </message>
    <message>
        <source>a number is expected</source>
        <translation>a number is expected</translation>
    </message>
    <message>
        <source>written by a newer terminal</source>
        <translation>written by a newer terminal</translation>
    </message>
    <message>
        <source>a text is expected</source>
        <translation>a text is expected</translation>
    </message>
    <message>
        <source>an argument has no name</source>
        <translation>an argument has no name</translation>
    </message>
    <message>
        <source>a map is expected</source>
        <translation>a map is expected</translation>
    </message>
    <message>
        <source>nested too deeply</source>
        <translation>nested too deeply</translation>
    </message>
    <message>
        <source>one of &quot;class&quot;, &quot;row&quot; and &quot;column&quot; is expected</source>
        <translation>one of &quot;class&quot;, &quot;row&quot; and &quot;column&quot; is expected</translation>
    </message>
    <message>
        <source>the name of a component is expected</source>
        <translation>the name of a component is expected</translation>
    </message>
    <message>
        <source>a list of cells is expected</source>
        <translation>a list of cells is expected</translation>
    </message>
    <message>
        <source>a positive number is expected for each cell</source>
        <translation>a positive number is expected for each cell</translation>
    </message>
</context>
<context>
    <name>ScreenListDialog</name>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Composite screens</source>
        <translation>Composite screens</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Last change</source>
        <translation>Last change</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>%1, damaged</source>
        <translation>%1, damaged</translation>
    </message>
    <message>
        <source>Delete %1? This cannot be undone.</source>
        <translation>Delete %1? This cannot be undone.</translation>
    </message>
</context>
<context>
    <name>ScreenMenu</name>
    <message>
        <source>&amp;Composite screens</source>
        <translation>&amp;Composite screens</translation>
    </message>
    <message>
        <source>&amp;New screen</source>
        <translation>&amp;New screen</translation>
    </message>
    <message>
        <source>&amp;Save screen</source>
        <translation>&amp;Save screen</translation>
    </message>
    <message>
        <source>&amp;Global arguments...</source>
        <translation>&amp;Global arguments...</translation>
    </message>
    <message>
        <source>&amp;Manage screens...</source>
        <translation>&amp;Manage screens...</translation>
    </message>
    <message>
        <source>&amp;Add component</source>
        <translation>&amp;Add component</translation>
    </message>
</context>
<context>
    <name>ScreenTab</name>
    <message>
        <source>%1 is damaged; what can be read is open, and the file is kept when the screen is saved. %2</source>
        <translation>%1 is damaged; what can be read is open, and the file is kept when the screen is saved. %2</translation>
    </message>
    <message>
        <source>The screen cannot be saved. %1</source>
        <translation>The screen cannot be saved. %1</translation>
    </message>
    <message>
        <source>What lay in the file of the screen before is kept as %1</source>
        <translation>What lay in the file of the screen before is kept as %1</translation>
    </message>
    <message>
        <source>Composite screen</source>
        <translation>Composite screen</translation>
    </message>
    <message>
        <source>%1 cannot be saved. Close it and lose the changes?</source>
        <translation>%1 cannot be saved. Close it and lose the changes?</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
</context>
<context>
    <name>ScreenView</name>
    <message>
        <source>Remove %1? Its settings are lost.</source>
        <translation>Remove %1? Its settings are lost.</translation>
    </message>
    <message>
        <source>Composite screen</source>
        <translation>Composite screen</translation>
    </message>
</context>
<context>
    <name>Screens</name>
    <message>
        <source>Screen %1</source>
        <translation>Screen %1</translation>
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
<context>
    <name>VariantJson</name>
    <message>
        <source>%1: a value of type %2 cannot be kept</source>
        <translation>%1: a value of type %2 cannot be kept</translation>
    </message>
    <message>
        <source>%1: a whole number of 64 bits is expected as a text</source>
        <translation>%1: a whole number of 64 bits is expected as a text</translation>
    </message>
</context>
</TS>
