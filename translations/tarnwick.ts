<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>QObject</name>
    <message>
        <source>Email address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stored TCP Timeout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK stores no time-out while none is selected; a fetch may then take %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This page is stored in the Windows-1252 character set, which has no &quot;%1&quot;. Delete the character that is selected now or type another one, then press OK again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sender of the alert mails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SMTP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server; it takes mail on port 25 without a log-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The .wav file of the alert sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a sound file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play this sound now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The alert program; ~1~ to ~6~ stand for what happened where</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bro&amp;wse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;est</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start this program now, with sample values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lo&amp;gs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep a log of all checks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the report of the day during a run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emai&amp;l</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send alert mails for the sites that ask for them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;udio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the alert sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pr&amp;ogram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start the alert program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TCP Timeout in seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many seconds the fetch of a page may take</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Store the settings and close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close without storing (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;SMTP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TCP T&amp;imeout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear Logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete every log line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>logs ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status of Clear Logs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compact &amp;Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back the database up, then make its file as small as it can be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>compact ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status of Compact Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create / &amp;View Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the report of today and open it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>report ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status of Create / View Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Administration Functions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start a run: tests every active site now (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the run (Shift+F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a site (Ctrl+N)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set&amp;up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Online Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the help page (F1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 home page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the home page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the test pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not the address of a web page. One looks like https://example.org/page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop could not open the page. You find it at:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Url</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Visit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the site in the browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Get</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Method: Get</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;ost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Method: Post</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interval in minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Url</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User&amp;name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Interval ( in minutes )</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POST variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the new variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enter name here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value of the new variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enter value here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add PO&amp;ST Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear POST Varia&amp;bles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alert by e-mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-mail address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page&amp;r</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alert by pager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App&amp;ly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save, then show the page that every check is compared with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Coun&amp;ters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset counters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close without saving (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site ID:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HTTP Post Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Defaults for all sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options of this site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How much the log holds of pages; the oldest are emptied first, and no page is stored while less than 1 GiB or 5 % of the disk is free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail exchange at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages in the log at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The longest time that handing over one mail may take, connecting included</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What becomes the baseline of a site that has none; with &quot;pages only&quot; a fetch that failed does not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When a run takes on a site that was never checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a mail server that stays silent is waited for without end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a site that was never checked is not taken on before the next Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>anything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MiB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at the next start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the log keeps the page of every failed check, and the disk may fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the first answer becomes the baseline, also the text of a fetch that failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pages only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2 where parallel is more than 5, else there is no such limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>250 where parallel is more than 5, else there is no such pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many pages of one host are fetched at the same time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many sites are fetched at the same time; with &quot;auto&quot; as many as their answers bear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause between requests to one host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requests at a time to one host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requests at a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The least time between the starts of two requests to one host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>auto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>five sites are fetched at a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do You Want To Choose A Copy And Put It In Its Place?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy is in its place. The list before is kept as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List: menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is done with the list as a whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists and bookmarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::BaselineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ContentDialog</name>
    <message>
        <source>Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Url: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Url</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load From Url</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetch the page now; nothing is stored yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Store this content and close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close without storing (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LOADING: Please Wait ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the content of site %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ControlDialog</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In Progress ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::CountersDialog</name>
    <message>
        <source>counters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counter Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear This &amp;Site&apos;s Counter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Counter For &amp;All Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ImportDialog</name>
    <message>
        <source>Import %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind of file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As its content shows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV of Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON of Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookmarks of a browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OPML</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of urlwatch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List or backup of changedetection.io</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jet database of these tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is not taken over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What kind of file this is does not show in its content. Choose it above, or see whether it is the right one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be imported. Faults of the file: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New sites: %1. To change: %2. There already: %3. Not taken over, and named below: %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sites added: %1. Changed: %2. What was not taken over is named below.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::Lamp</name>
    <message>
        <source>Lamp &quot;%1&quot;, bar %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: lit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: not lit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::Master</name>
    <message>
        <source>Tarnwick web-site monitor. Copyright © the Tarnwick developers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your data: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 keeps your sites and settings in the folder %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings are kept in the table &quot;control&quot; of the database; this window cannot change them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These changes are not stored: %1.

Do You Want To Discard Them And Close %2?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::NewPostVar</name>
    <message>
        <source>Add / Edit Post Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HTTP Post Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enter name here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>enter value here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This variable was changed or removed by another program. Press Cancel, and look at the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a variable of site %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::Notices</name>
    <message>
        <source>1 site is unwatched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites are unwatched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 site is unwatched: no run is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites are unwatched: no run is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 alert was not delivered: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 alerts were not delivered: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 alert was not delivered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 alerts were not delivered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last %1 of them:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1, %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::OptionForm</name>
    <message>
        <source>on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the original</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As in Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to be chosen here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. As the original: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::PostVarModel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteEditor</name>
    <message>
        <source>Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site ID: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do You Want To Discard The Changes To Site %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name holds a line end. Enter it as one line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This variable is not stored as it is shown. Press Apply to store the list, then click the variable again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteGridModel</name>
    <message>
        <source>up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time Of Last Test</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteGridView</name>
    <message>
        <source>Method ( get,post )</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active ( true,false )</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes Until Next Check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Last Checked</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteReason</name>
    <message>
        <source>Site %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteState</name>
    <message>
        <source>testing …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::VarsForm</name>
    <message>
        <source>Command1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
