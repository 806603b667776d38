<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>Messages</name>
    <message>
        <source>Loading ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testing:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testing: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time Until Next Check: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run Time: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No countdown: site %1 is still being entered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No countdown: site %1, never checked, waits for the next Start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No countdown: %1 sites, never checked, wait for the next Start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creating Report ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Done ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must enter a valid email address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are You Sure You Want To Delete All Logs?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compacting the database may take several minutes and disable this application during that time. Are You Sure You Want To Compact This DataBase?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compact Failed - Data May Be Corrupt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compact Successful</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logs Cleared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aborting compact:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do You Want To Delete This Site?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This site is fetched with GET; what it has of POST variables is kept but not sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site %1 is not in the list any more. Close its editor; to watch it again, add it with New.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The interval of site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists of Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail is left out, since the mail server %1 has not taken an earlier one in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server %1 has not taken the mail within %2; the other mails of this pass to it are left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No mail server is set, so the mail could not be sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail was given up when the run was stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server %1 could not be reached or refused the mail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the baseline was changed meanwhile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: the page goes on behind this line, the baseline ends with it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: the page ends with this line, the baseline goes on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: expected %2, found %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the fetch fails, and its text is the baseline: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page differs from the baseline, and was not kept: there is too little room on the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page was not kept: there is too little room on the disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address of the site is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Site %2 is due again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for the check of site %1. End other programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow: the %1 counter of site %2 (%3) stands at %4 and cannot count further. Clear the counters in the site&apos;s Counters dialog.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no choice of sites with the number %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The request took longer than %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No connection to the proxy server %1 could be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 gives its files out at a port that cannot be reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to %1 was refused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The host %1 cannot be reached from this machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The host %1 does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No connection to %1 could be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The certificate of the server %1 could not be verified: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not valid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody whom this machine trusts has issued it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was issued for another host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has expired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not valid yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 redirected to an address that is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine has no more file handles for Tarnwick.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine has not enough memory for another connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 closed the connection without an answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No secure connection to %1 could be made: the server closed the connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No secure connection to %1 could be made: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No secure connection to %1 could be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the host %1 could not be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the proxy server could not be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system&apos;s file of trusted certificates could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of trusted certificates %1 could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The transfer library cannot be used: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The header of the answer is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 did not answer in the language of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The answer of the server %1 is damaged: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its length is not clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bad trailer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bad chunk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The compressed answer of the server %1 could not be decoded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The compressed answer of the server %1 is incomplete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page is larger than %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy server %1 made no connection to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 broke the connection off during its answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 redirected to an address of a kind that is not fetched; only http, https, ftp and ftps are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 asked for the user name and the password again and again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server redirected more than %1 times.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 did not confirm the end of the transfer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 is not available for now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 redirected to an address that holds a name and a password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 refused the user name or the password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server %1 does not give the file out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The transfer from %1 failed: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 port %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address %1 is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Addresses of the kind %1 are not fetched, only http, https, ftp and ftps.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The method %1 is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name or the password holds a line end, and a file server takes none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow: %1 is %2, which does not fit 32 bits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow: %1 is %2, which is outside the range of -32768 to 32767.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow: no site can be added, since the site id %1 is in use and ids end at %2. Delete the site with the highest id, then add the new one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the site id %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the new site&apos;s id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the setting timeout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the check interval of site %1 in seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the id of a POST variable of site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the width of a report bar (5 more than the count)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>report minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file&apos;s name cannot hold a NUL character.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a folder, where a file was expected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program is using the file. Close that program and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows reports the error %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A run is on in this folder already: %1 checks the sites of %2, and a second run would check each of them twice. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop that run first; when no such process exists on that machine any more, remove %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, so no run can be started in it.%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file system of this folder has no locks (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the folder to another disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a program (process %1 on %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (process %2 on %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No pipe for the signals could be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. The installation of Tarnwick is not whole: install it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The fresh file cannot be given this name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The reports folder is there but holds no file. Put green.jpg and red.jpg into it, or remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text in the statement has no end: a single quote is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name in the statement has no end: a quote or bracket is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement holds a character outside its quoted texts that has no meaning there (character code %1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection string names no database: &quot;Data Source=&quot; is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the database is open already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection to the database is not open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the form of the tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the end of the file is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one statement can be run at a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. Nothing was stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; %2 was not stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A record with this key is there already; nothing was stored. (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database does not allow this value; nothing was stored. (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 is in use by another program, which has locked it. Close that program, or wait until it is done, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 could not be locked. Try again; if it lies on a network disk, move it to one of this machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table of the database is still being read; the change cannot be made now. Try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 cannot be changed: the file %2, which belongs to it, is read-only. Allow writing to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 cannot be changed: the file or its folder is read-only. Allow writing to both.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 cannot be opened. Allow reading and writing the file and its folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is full: the database %1 could not store this. Free some space and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is full: even reading the database %1 needs room for a small file beside it. Free some space and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading or writing the database %1 failed. Check the disk it lies on, and its free space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text is too large for the database; nothing was stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The record&apos;s number must be a whole number; nothing was stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database refused the statement: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 is damaged or is no database. Put back a good copy, for instance backup.mdb. (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 is missing. Put the file back, for instance by copying backup.mdb to its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 is a folder. Put the database file in its place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 is no file: a device, a pipe or a link that leads in a circle has its name. Put the database file in its place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 was exchanged for another file while it was in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files %1-wal and -shm, which belong to the database, were removed or exchanged while it was in use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was stored last may be lost. From now on the files that are there are used: look whether they are the right ones, and try again. Close every Tarnwick before you touch them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>datediff knows the units n and s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 is there already and would be overwritten. Remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 cannot be written. Allow writing to its folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 belongs to another database than %2. Remove it. (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no current record: the statement returned none, or all have been read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The records have been closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement returns no field &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statement returns no field number %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 was written by a newer Tarnwick: its tables have form %2, and this program knows forms up to %3. Use the newer program, or put back a copy from before, for instance backup.mdb.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 has no settings row, so nothing could be stored. Put back a good copy, for instance backup.mdb.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database %1 has no settings row. Put back a good copy, for instance backup.mdb.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option %1 does not take &quot;%2&quot;. It takes %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;. The options are: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option %1 holds for all sites, and none has a value of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A run is on in this folder: %1 checks the sites of %2, and would go on with the list that is to be replaced. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, so the list in it cannot be replaced.%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no file, so it cannot be put in the place of the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 is the list itself. Name the copy to go back to, for instance backup.mdb.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 is a database, but no list of Tarnwick.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 is no sound copy of a list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 is no sound copy of a list. Nothing was changed. (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option %1 does not take &quot;%2&quot;. It takes &quot;%3&quot; or &quot;%4&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option %1 does not take &quot;%2&quot;. It takes &quot;%3&quot; or &quot;%4&quot; or &quot;%5&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 or &quot;%3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 (%3) or &quot;%4&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has %1 fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has %1 faults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not taken over: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: left out: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: not taken over: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, %2: left out: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1, %2: not taken over: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: left out: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: not taken over: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a control character stands here, so this is no list of addresses: give a text file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a command, and only pages are watched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text behind it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the text behind it, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the address stands in the file before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the address stands in the file before, on line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the dates and icons of the bookmarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>post data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file breaks off here: a folder of it has no end. Export the bookmarks anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file holds NUL bytes, so these are no bookmarks: export them as HTML</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no JSON: %1. The file may be cut short: copy it anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no JSON: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the general setting %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no list of changedetection.io: a watch in it is no object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>counters, times and the pages of the past</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no list of changedetection.io: it has no member &quot;watching&quot; with an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the zip archive holds no list: it is no backup of changedetection.io</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the bookmarks of a browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a list of urlwatch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list or backup of changedetection.io</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is larger than 64 MiB, and no list of sites is: see whether it is the right one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is UTF-16: save it as UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file holds no address: see whether it is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is not enough memory to read the file: see whether it is the right one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file cannot be read as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file cannot be read as %1: see whether it is the right one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is damaged so badly that it cannot be read: copy it anew, or export it again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list was not handed over whole.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>method %1 (so it is switched off)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>interval of %1 seconds (taken as %2 min)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>request body %1, which is no form (so it is switched off)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>header %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>title %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tags %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is the address of no page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no whole OPML: %1. Export it anew, or correct it here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no OPML: its outermost element is %1 instead of &quot;opml&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this Tarnwick was built without %1, so it does not read %2: install %3 and build it again, or give a plain list of addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lists of urlwatch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>zip archives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no url</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time-out of %1 seconds (there is one for all sites: the setting timeout)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rendering by a browser (navigate)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is larger than 16 MiB, and no list of urlwatch is: see whether it is the right one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no job of urlwatch: give one like url: https://...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no YAML: %1. Correct it here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the zip archive is damaged or cut short (%1): copy or download it anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a file in it does not come to its end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the lists in the zip archive are larger than 64 MiB, and none is: see whether it is the right one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text is expected: a string, or {&quot;base64&quot;: &quot;...&quot;} for bytes that are no UTF-8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>idSite %1 stands on line %2 already: give each site an id of its own, or none to add it as a new one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the option %1 holds for all sites, and none has a value of its own: set it for all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the url is empty: give the site&apos;s address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no id is left for a new site, since ids end at %1: give it one that is free, or delete the site of the highest id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>site %1: the email %2 is imported, but is none that add takes: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 holds a line end or a NUL byte: give it without</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>url %1 is no address: give one like https://example.org/page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>url %1 cannot be fetched: give an address of http, https, ftp or ftps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>email %1 is no mail address: give one for the alerts, or set alertEmail to False</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>letters a to z, digits, &quot;.&quot;, &quot;-&quot;, &quot;_&quot; before the &quot;@&quot; only, and at most 3 characters behind the last &quot;.&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is no whole number: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is outside 1 to %3: %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>give the site&apos;s id, or leave it out to add the site as a new one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>give the whole minutes between two checks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is neither yes nor no: give True or False</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is none that is sent: give get or post</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no option %1: they are listed by tarnwickctl option --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the option %1 is given twice: leave one of them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the option %1 does not take %2: give %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the baseline is larger than the largest page that is fetched, 64 MiB: leave it out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file holds more than 32767 sites, and a list has no ids for more: leave some out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the column url is missing: the first line names the columns, of which url must be one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the fields are separated by %1: save the file with commas between the fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>semicolons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no column %1: the first line names the columns, which are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the column %1 is named twice: leave one of them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>idSite 0 stands for all sites, which have options and nothing else: leave the other fields empty, or give a site&apos;s id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the baseline is no base64 text: export it anew, or leave its column out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is empty: its first line names the columns, which are %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number of fields is %1 and that of columns %2: give each column its field, and put one that holds a comma in quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the row has more than %1 fields, and the list has no such columns: leave them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the quote that begins a field here is never closed: end the field with a quote, and double the quotes inside it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text stands behind the quote that ends a field (it begins on line %1): double the quotes inside a field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text stands behind the quote that ends a field: double the quotes inside a field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a quote stands inside a field that does not begin with one: put the field in quotes, and double the quotes inside it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a NUL character stands outside of quotes: save the file as UTF-8, or put the field in quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a carriage return stands alone: end lines with CR LF or LF, or put the field in quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the member &quot;tarnwick&quot;: 1 is missing, so this is no list of sites: begin the file with {&quot;tarnwick&quot;: 1, &quot;sites&quot;: [</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the member &quot;sites&quot; is missing: give an array with an object for each site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an object of more than %1 members</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an array of more than %1 values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the member %1 is given twice: leave one of them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is of version %1 of the list&apos;s format, and version 1 can be read: export it with the same program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the site holds objects in objects that no member has: leave them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the site holds %1, and none has so many: leave them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the array &quot;sites&quot; holds something else than objects: give an object for each site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no list of sites: it has the form {&quot;tarnwick&quot;: 1, &quot;sites&quot;: [{...}, ...]}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no member %1: the members are %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is no whole number: give one without quotes, a point or an exponent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is neither yes nor no: give true or false, without quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 is no text: give a string, or {&quot;base64&quot;: &quot;...&quot;} for bytes that are no UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>postVars is no array of {&quot;pname&quot;: &quot;...&quot;, &quot;pvalue&quot;: &quot;...&quot;}: give one such object a variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the option %1 is no text: give a string, or {&quot;base64&quot;: &quot;...&quot;} for bytes that are no UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>options is no object: give {&quot;NAME&quot;: &quot;VALUE&quot;, ...}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the member url is missing: give the site&apos;s address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no encoded byte: write a percent sign as %%25</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no &quot;=&quot;: write name=value, and between two of them one &quot;&amp;&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are more than %1 variables, and no site has so many: leave them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody can be asked here: to do it without a question, add --yes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no moment. Write it as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>YYYY-MM-DD, &quot;YYYY-MM-DD HH:MM:SS&quot;, today, or an age like 90s, 15m, 2h, 7d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the site was changed, switched off or deleted while it was checked, so its page was dropped; check it again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out, since never checked: %1. Check once with: tarnwickctl check%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No site is due.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no active site to check. Add one with: tarnwickctl add URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interrupted: %1 of %2 sites were checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A verb is missing, for instance: tarnwickctl sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no verb &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no id: ids are whole numbers from 1 to 32767</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See: tarnwickctl%1 --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See: tarnwickctl --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The counters of all sites are 0 now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The counters of site %1 are 0 now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The format of &quot;%1&quot; does not show in its name. Add --format csv or --format json.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An import will refuse site %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An import will refuse %1; the first %2 are named.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is the list itself. Export to a file of another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported %1 to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What kind of file &quot;%1&quot; is does not show in its content. Add --format with %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>change the options of all sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The options of all sites are changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to add, %2 to change, %3 to delete, %4 unchanged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 added, %2 changed, %3 deleted, %4 unchanged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 note tells what was not taken over, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 notes tell what was not taken over, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 entry was left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 entries were left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, line %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 more like these are not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was imported; %1 more faults are not shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has no site. Delete all that are in the list (%1) with their POST variables and baselines?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no fresh list beside the tool to lay into %1. The installation of Tarnwick is not whole: install it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 has had a list, which is missing. Put tarnwick.mdb back, for instance with: tarnwickctl restore backup.mdb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fresh list lies in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a list in %1 already. It stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only &quot;log clear&quot; takes --yes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log holds no such result.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log holds no such result, and none is written. To write them: tarnwickctl settings clogs on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;log clear&quot; empties the whole log; it takes no option but --yes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the whole log?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log is empty now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither all nor the id of a site. The ids are listed by: tarnwickctl sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option %1 of %2 is removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option %1 of %2 is stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option %1 is not set: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has no baseline yet: the next page that is fetched becomes it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interrupted; the baseline is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page of site %1 could not be fetched; the baseline is as it was. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page of site %1 is empty, which cannot be a baseline; the baseline is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page that was fetched now is the baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page that was fetched now is the baseline. (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is empty. To remove the baseline, use: tarnwickctl baseline %2 clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is larger than the largest page that is fetched, 64 MiB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is the baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is the baseline. (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has no latest page. Fetch it with: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest check of site %1 brought no page but &quot;%2&quot;. Check again with: %3; if that is the page&apos;s own text, use --force.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest page is the baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest page is the baseline. (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only &quot;accept&quot; takes --force.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name the file: tarnwickctl baseline %1 set FILE (- for standard input)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The baseline is cleared: the next page that is fetched becomes it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--- baseline of site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+++ latest page of site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is: tarnwickctl post %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has no POST variables. Add one with: tarnwickctl post %2 add NAME VALUE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has no variable %2. Letter case and blanks count; they are listed by: tarnwickctl post %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the value %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has several variables %2. Add behind the name the value of the one that is meant: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has the variable %2 now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable is %1 = %2 now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable %1 is removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only &quot;list&quot; prints JSON.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only &quot;add&quot; takes --value-file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run started: %1 active in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checked %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checked %1: %2; %3 left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 mails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(was down)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The run goes on, but its lines cannot be written: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no active site to watch yet. Add one and check it once, so that this run takes it on: tarnwickctl add URL, then: tarnwickctl check ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The run has ended, since nobody reads its lines any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is an option, and no setting. See: tarnwickctl option all %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. The settings are: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The setting %1 is on or off (also yes or no, true or false, 1 or 0), and &quot;%2&quot; is neither.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The setting %1 is a whole number of seconds from 1 to %2, and &quot;%3&quot; is none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The setting %1 is stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--post takes NAME=VALUE, and &quot;%1&quot; has no &quot;=&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name &quot;%1&quot; holds a line end, which could become a command to a server. Give it as one line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say what is to be changed of site %1. See: tarnwickctl set --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 is changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid address. One looks like https://example.org/page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be fetched: %2 is none of http, https, ftp and ftps.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid email address. One address is taken, like name@example.org: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no method. Take get or post.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 is fetched with GET, so its POST variables are kept but not sent. To send them: tarnwickctl set %2 --method post</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no interval. Take a number of minutes from 1 to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no site in the list yet. Add the first one with: tarnwickctl add URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No site of the list is like that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1, with its POST variables and its baseline?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1 sites (%2) with their POST variables and baselines?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 is deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--folder names no folder. Give the one in which tarnwick.mdb lies.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard output took not all of it: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or name the right folder with --folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no site %1. The ids are listed by: tarnwickctl sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A copy is put in its place by: tarnwickctl restore backup.mdb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A run that is on takes the site on once it was checked. Check it with: tarnwickctl check%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A run that is on takes %1 of the sites on once they were checked. Check them with: tarnwickctl check%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compact Failed. The database is as it was: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compact Failed. There is no room for the compacted copy; the database is as it was: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The database is compacted: %1 bytes before, %2 bytes after. backup.mdb is the copy from before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The one before is kept as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>METHOD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>INTERVAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LAST TEST</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OPTION</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EFFECTIVE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAME</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VALUE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SETTING</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interval</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last test</source>
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
        <source>Alert mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up (inactive)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down (inactive)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a page (inactive)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- (inactive)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set; --show-password shows it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none yet: the next page that is fetched becomes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete site %1 (%2), with its POST variables and its baseline?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list is a copy of %1 now, with %2 site.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list is a copy of %1 now, with %2 sites.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POSITIONALS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Excludes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Verbs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Positionals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print this help message and exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display program version information and exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From this moment on: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The kind of the file, where its content does not show it: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names, and what they take:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes &quot;%1&quot; or &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes &quot;%1&quot; or &quot;%2&quot;. In a new list: &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes %1. In a new list: &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not set: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name for the fetch; &quot;&quot; for none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the password from a file, without its line end; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A POST variable; may be given several times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail no failures; the address is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 excludes %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 not in {%3}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: Value %2 not in range [%3 - %4]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: Value %2 not in range %3 to %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The following argument was not expected: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The following arguments were not expected: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not convert: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 required %3 missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: 1 required %2 missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no display for the window: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The window cannot be opened on the display %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tarnwick: %1 Start it on a desktop, or watch your sites in a terminal with: tarnwickctl run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tarnwick: There is no option &quot;%1&quot;. See: tarnwick --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: tarnwick [OPTIONS]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the window of Tarnwick, which watches web pages for changes of their content.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-h, --help     Print this text and end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--version      Print the version and end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options of the Qt toolkit, for instance -style, -platform and -display, are understood.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In a terminal the same work is done by: tarnwickctl</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check sites once, now: all active ones, those named, or those that are due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sites to check, active or not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the active sites whose interval has elapsed; one that was never checked is none of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each result is recorded, and each failure raises the alerts that the settings switch on, as in a run.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit status: 0 when every site is up, 1 when one is down, 2 when the check could not be made,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3 when none is down, but one was changed, switched off or deleted meanwhile and its page was dropped,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 when neither is so, but one is up only because its baseline is the text of a fetch that fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every active site, a line each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is due, for a script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tarnwick watches web sites for changes of their content: the terminal front end. It works on the list of sites of a program folder, with or without the window open on the same folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit status: 0 when all is well, 1 when a site is down or a page differs, 2 when the work failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each verb has a --help with examples.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program folder, in which tarnwick.mdb lies (default: the tool&apos;s own, or yours where that one is shared)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print what lets a shell complete the tool&apos;s verbs and options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bash, zsh or fish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The packages bring it along. From an archive, for your own shell:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for bash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for fish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the counters of successes and failures to 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site&apos;s id, as the verb sites lists it; every site without one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a site is up or down stays as it is; the log stays too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of one site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of all sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the list of sites to a CSV or JSON file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file, whose name ends in .csv or .json; - is standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file&apos;s format, whatever its name: csv or json</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the passwords out; an import then keeps those stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the pages that the sites are compared with as well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for a spreadsheet, or for another computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a copy of the whole list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take sites into the list from a file of Tarnwick or of another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add every site as a new one, whatever its id in the file; the options of all sites stay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the sites that the file does not name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not ask when the file has no site, so that --replace deletes every one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only say what would be done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A CSV file names its columns in the first line, separated by commas. Only url must be there; the others are idSite, method (get or post), active, tInterval (minutes), alertEmail, email, sUserName, sPassWord, postVars (name=value&amp;name=value, other bytes than letters and digits as %XX), baseline (base64). An empty idSite, method, tInterval or yes/no is as one left out. A JSON file has the form {&quot;tarnwick&quot;: 1, &quot;sites&quot;: [{&quot;url&quot;: ...}, ...]}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what would be added and changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>do it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>make the list as the file has it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the list of somebody else, beside one&apos;s own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what of a browser&apos;s bookmarks would be watched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay a fresh list and mail template into a folder that has never had any</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder is made when it is missing. What is there stays as it is, and a list that has gone missing is an error. Without --folder the first start of the program does it by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for a list beside your own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>whether one was laid, for a script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the log of check results, the oldest first, or empty it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show (default), clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only this site, also one that is deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only checks that failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the N newest of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pages of the checks that failed as well; none is kept of the others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For &quot;clear&quot;: do not ask; needed where nobody can be asked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The setting clogs says whether results are written to the log.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what has failed today</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the last 20 checks of a site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>how often each address has failed in the last two hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty it, without a question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or change what a site, or the program, does otherwise than originally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all, or the id of a site as the verb sites lists it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NAME shows an option, NAME=VALUE sets it, NAME= removes it; all are listed without one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A site without a value of its own goes by the one for all. Where neither is set, the program does as it did originally.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is set for all sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hand over a mail in half a minute at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one site does otherwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and again as all others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or change the page that a site is compared with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For &quot;accept&quot;: also a latest page that looks like a failed fetch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the baseline, byte for byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an edited one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what the last check fetched is how the page shall be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetch the page now and take it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare a site&apos;s baseline with its latest page, as a unified diff</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what has changed, coloured on a terminal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for the program patch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List, add, change or remove the POST variables of a site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list (default), add, change, remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable&apos;s name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its value; not needed to find the only one of a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For &quot;change&quot;: the new name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For &quot;change&quot;: the new value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For &quot;change&quot;: the new name alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For &quot;change&quot;: the new value alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For &quot;add&quot;: read the value from a file, without its line end, so that no other user of this machine sees it on the command line; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names and values are found exactly as they are: letter case and blanks count. What begins with a minus sign is written behind --.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the variables, in the order in which they are sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the one of this name and value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same, where it is the only one of its name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one less</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a value with a minus sign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watch the sites until interrupted: check all active ones, then each when it is due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line for every result, not only for failures and recoveries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print an object a line for every event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+C (SIGINT) and SIGTERM stop the run and close the database; so does the end of what reads its output. One run at a time is possible on a folder. A site that is added meanwhile is taken on once it was checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a countdown on a terminal, lines with their time elsewhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only the failures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or change the program&apos;s settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A setting, in any letter case; all of them without one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its new value: a text, seconds, or on or off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A change takes effect at the next check, also in a run that is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>wait a minute for a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>send alert mails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an empty text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password for the fetch; other users of this machine may see it on the command line, so prefer --password-file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave it out of runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a site to the list and print its id</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without options it is fetched with GET every 10 minutes; with --post it is fetched with POST. The first page that is fetched becomes its baseline. A run that is on takes the site on once it was checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>watch a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and check it at once, so that a run takes it on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what a form answers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>behind a password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with alert mails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address of the page: http, https, ftp or ftps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let runs check it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change a site; what is not named stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --post the variables given replace all that the site has; the verb post changes single ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check it more often</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page has moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no credentials any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only those whose last check failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only those that a run checks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only those that a run leaves out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STATE is &quot;up&quot; or &quot;down&quot; as the last check found, and &quot;-&quot; where none has been made. It is &quot;not a page&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>where a site is up only because the text of a fetch that fails is its baseline, which the log tells.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what needs a look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the addresses that are down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all about one site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the password too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its settings, counters, POST variables, and the size of its baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same for a script, with the password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete sites with their POST variables and baselines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ids of the sites, as the verb sites lists them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not ask; needed where nobody can be asked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All of them are deleted, or none when one is not in the list. What the log says of them stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>asks first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>three sites, without a question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put a copy of the list in its place, and keep the list as it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy, for instance backup.mdb; it stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy must be a sound list. The list before, damaged or not, is kept beside it under a name with the date. No other program may have the list open: end a run and close the window first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goes back to the list before the last compaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same with a copy, for a script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the report of today&apos;s log and print its path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is reports/report.html in the program folder; only the newest is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the path of the page that was written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same for a script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shrink the database, and keep a copy of it as it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy is backup.mdb in the program folder. No other program may have the database open: end a run and close the window first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>prints the sizes before and after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site&apos;s id, as the verb sites lists it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the page is fetched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether runs check it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The time between two checks, 1 to 32767 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alert mails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether its failures are mailed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail its failures to this address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name for the fetch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password for the fetch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the address that alert mails come from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the mail server that alert mails are handed to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the .wav file that an alert plays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the program that an alert starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>how long a fetch may take, in seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write every result to the log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>write the daily report during a run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>play the alert sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>start the alert program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aborting compact: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: changed while it was checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is: tarnwickctl post %1 NAME VALUE, or: NAME --value-file FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is: tarnwickctl post %1 NAME VALUE NEW_NAME NEW_VALUE, or: NAME [VALUE] [--name NEW_NAME] [--value NEW_VALUE]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the settings and the %1 results of the log, which only an empty list takes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a Jet database of the same tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is no Jet database: see whether it is the right file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the database has no table sites, so it is none of this program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 POST variable of a site that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 POST variables of sites that are not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its id is %1, and ids are 1 to 32767, each of them once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>interval of %1 min (taken as %2 min)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the database is damaged (%1): have its own program repair it, or take an older copy of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of the %1 rows of the table %2 %3 can be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a row of the table %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its list of tables cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is cut short, or its list of tables is not whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings and %1 result of the log would be taken, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings and %1 results of the log would be taken, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings and %1 result of the log are taken, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings and %1 results of the log are taken, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also taken are a list of addresses, one a line, the bookmarks of a browser (HTML), OPML, the lists of urlwatch, the list or the backup of changedetection.io, and a Jet database of the same tables. A site of theirs whose address is in the list is that site. What has no place in the list is named, site by site.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mails to %1, which is no mail address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or jet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: At Most 1 required but received %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 (%3) or &quot;%4&quot; or &quot;%5&quot; or &quot;%6&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up to ten pauses of 1 to 300 seconds, as in &quot;5 s, 20 s&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number of changes and of minutes, as in &quot;5 in 30 min&quot;, or &quot;off&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>days and hours, as in &quot;Mon-Fri 22:00-6:00, Sat, Sun 0:00-24:00&quot; or &quot;daily 22-6&quot;, or &quot;none&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>times parted by semicolons, each perhaps with &quot;do not check&quot; or &quot;keep alerts&quot; and a note, as in &quot;2026-12-01 08:00 to 2026-12-01 12:00, do not check: new server&quot;, or &quot;none&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;until 2026-12-01 08:00&quot;, &quot;for good&quot; or &quot;no&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hosts parted by commas, as in &quot;example.org, 192.0.2.1:53&quot;, or &quot;none&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine is offline since %1. Nothing is counted as down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting: the sites that are due are in their quiet hours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a page (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unconfirmed (%1 of %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unconfirmed (%1 of %2) (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unsteady</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unsteady (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>slow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>slow (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>since %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>until %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiet now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its alerts are kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unwatched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no run is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never checked, and not taken on by the run that is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not checked for two intervals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not checked at this time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 active site is not watched, since no run is on. Start one with: tarnwickctl run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 active sites are not watched, since no run is on. Start one with: tarnwickctl run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 active site was never checked, and the run that is on does not take it on. Check it with: tarnwickctl check %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 active sites were never checked, and the run that is on does not take them on. Check the first with: tarnwickctl check %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 active site has not been checked for two of its intervals, though a run is on. See whether it is held up, or stop it and start it anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 active sites have not been checked for two of their intervals, though a run is on. See whether it is held up, or stop it and start it anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 active site is not checked at this time, as its quiet hours or its maintenance say.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 active sites are not checked at this time, as their quiet hours or their maintenance say.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The alerts of %1 are paused %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The alerts of %1 are not paused any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sites %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has gone by already. Name a moment that lies ahead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no span. Write it as 90s, 30m, 2h or 1d, of ten years at most.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;YYYY-MM-DD HH:MM&quot;, HH:MM, &quot;today HH:MM&quot;, &quot;tomorrow HH:MM&quot; or tomorrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell nothing of some sites, or of all, for a while</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ids of the sites, as the verb sites lists them; all of them without one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So long: 30m, 2h, 1d; an hour without it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until then: &quot;2026-12-01 08:00&quot;, 18:00, &quot;tomorrow 8:00&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until the verb resume ends it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sites are checked and recorded all the same. What is down then is told when the pause ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all sites, for an hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two sites, for two days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the night is quiet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End the pause of some sites, or of all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without a site all pauses end, those of single sites too. A site that is named is told of again also</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>while all others are paused.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every pause that there is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>that of one site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine is offline. %1 of %2 sites were checked, and nothing is counted as down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page differs from the baseline, and is too large to be compared here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number of %1 digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number of %1 to %2 digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a hex number of %1 digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a hex number of %1 to %2 digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a key of %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a key of %1 to %2 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>letters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a date and time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of %1 texts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>anything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: &quot;%2&quot; may be another date or time tomorrow, though it has not changed yet. Fetch again over a day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only %1 %% of the page would stay watched: too much of it changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copies have very different lengths: one of them may be another page, or an error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule %1 (%2 %3 %4) matches nothing on the page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rule &quot;%1&quot; cannot be understood: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A pointer begins with a slash, as /items/0/price.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write ~0 for ~ and ~1 for a slash within a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write numbers of lines from 1 on, as 3, 3-7 or 12-.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its last line comes before its first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write an expression that selects elements, as //div[@id=&apos;main&apos;] or //p.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this Tarnwick was built without %1. Install %2 and build it again, or name lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is no selector from &quot;%1&quot; on. Write one such as div.news &gt; p or a[href^=&apos;/ad&apos;].</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: only two different texts were seen there; what else it may say is a guess. Fetch again over a day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: nothing was learnt. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the page differs from the baseline also in line %2, so nothing is stored. Look at it with: tarnwickctl diff %3; if that is how the page shall be: tarnwickctl baseline %4 load, then learn again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the baseline was changed meanwhile. Learn again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let this vary in site %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interrupted; nothing is learnt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 of %3 fetches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: nothing has varied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 place varies; %3 %% of the page stays watched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 places vary; %3 %% of the page stays watched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rules of site %1 are stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RULE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PLACE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WHAT MAY STAND THERE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IN THE BASELINE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has no rules: its page is compared byte for byte.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the places that may vary %1 is not in the baseline any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the places that may vary %1 are not in the baseline any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of hole: give one of digits, hex, base64, letters, date, list, text, anything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text &quot;%1&quot; stands nowhere in the baseline. Give the text that may vary as it stands there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text &quot;%1&quot; stands more than once in the baseline. Select the place in the window, or learn it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This place touches another one that may vary, in %1. Remove that first: tarnwickctl rules %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A rule is one of leave-out, compare-only and hole, then regex, css, xpath, json or lines, then the rule in quotes; see: tarnwickctl help rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A rule is one line: write a line end in a regular expression as its escape.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say what to add, for instance: tarnwickctl rules %1 add leave-out css &quot;div.clock&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name the rule by its number, or all of them: tarnwickctl rules %1 remove 1|all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no page to try the rules on. Give a file, or fetch the page: tarnwickctl check %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 match</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 matches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By these rules the page is the same as the baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By these rules the page differs from the baseline, first in line %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page could not be fetched. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server answered with an error page (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page is an error page of the server, and was not taken as the baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page has less than half the length of the one before, and was not taken as the baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the rule %1 is none: give it as an export writes it, for instance &quot;leave out css div.clock&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rules is no array: give [&quot;RULE&quot;, ...]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Learn from several fetches what always changes on a page, and let it vary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ids, as the verb sites lists them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many times each page is fetched, from 2 to 50; 5 without this</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spread the fetches over this time, as 30m, 2h or 1d; at once without this</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Store what was learnt without asking</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers, keys, dates and words that vary become places where anything of their kind may stand; all around them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stays compared byte for byte. With --json nothing is stored unless --yes is given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fetch the page of site 3 five times, and ask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same over a day, which finds what changes with the date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what may vary in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or change what of a site&apos;s page does not count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list (default), add, remove, test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for add: leave-out|compare-only LANGUAGE RULE, or hole CLASS TEXT; for remove: a number or all; for test: a FILE, without one the latest page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Languages: regex (RE2; its first group, where it has one), css, xpath, json (a pointer, RFC 6901), lines (3-7).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classes of holes: digits, hex, base64, letters, date, list, text, anything. TEXT is what the baseline has there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A site without rules is compared byte for byte.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what does not count on the page of site 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>whole elements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing else</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this number may be another one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what the rules do to a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as the list numbers them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no date or time whose form is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no baseline yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no desktop here that could show a notice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So much of the page changes that its places cannot be told apart: all from the first to the last of them is one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pages are too large to learn from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program could not be started. Is its path right, and may it be run?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>started, still running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exit status %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was answered within %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel has no password or token. Give it one in its settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The token command gave no token: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mute for an hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound cannot be played. Is it a .wav file that is there?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody could tell it within a day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a test of the channel %1. Alerts that look like this one will follow.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A channel needs a name of one line without commas, as in &quot;office mail&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel %1 lacks &quot;%2&quot;: %3. It takes %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a channel &quot;%1&quot; already. Give this one another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no channel of the kind &quot;%1&quot;. The kinds are: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A channel of the kind %1 has no &quot;%2&quot;. It has: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the mail server &quot;%1&quot; is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name or the password for the mail server holds a character that cannot be sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail has no recipient.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail address &quot;%1&quot; is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The header &quot;%1&quot; cannot be sent with a mail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server %1 takes no mail addresses with other letters than those of ASCII.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server %1 has not taken the mail within %2; the last step was %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server %1 offers no encryption, and it is required.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server %1 offers none of the ways to log in that are known here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server %1 broke the connection off; the last step was %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server %1 did not answer in the language of mail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory for the mail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (the server offers no log-in)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop has no service that shows notices. Install one, or use a channel of another kind.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop did not show the notice: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A password in %1 is damaged. Enter it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key ring of the desktop did not give the password out: %1. Unlock it, or enter the password again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key ring of the desktop did not take the password: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which channel is meant? Name it, as in: tarnwickctl channel %1 office. They are listed by: tarnwickctl channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no channel &quot;%1&quot;. They are listed by: tarnwickctl channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one word too many. A name of several words stands between quotes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no channel, so that alerts leave as the settings say. Add one, for instance: tarnwickctl channel add phone --webhook https://ntfy.sh/YOUR-TOPIC --preset ntfy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the channel %2 (nothing is shown):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Token</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The key ring has not answered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel %1 is stored, but not its password or token: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A channel of the kind %1 has no password or token.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel %1 is stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel %1 has no password or token yet. Give it: tarnwickctl channel set &quot;%2&quot; --password-file FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A channel is of one kind: leave out %1 or %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How is it to tell? Add --mail, --webhook, --notice, --program or --sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A preset is one of a web hook: leave --preset out, or give --webhook.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is on or off, and &quot;%2&quot; is neither.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no &quot;=&quot;: what is to be set stands as FIELD=VALUE, and FIELD= takes it away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is to be changed? For instance: tarnwickctl channel set &quot;%1&quot; default=off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel %1 is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel %1 is off: its alerts wait.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the channel %1 with the alerts that wait for it (%2)?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel %1 is removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test was interrupted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test message is sent: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The test message is not sent: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; may be given again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields, for set, and what they take:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes %1. It has to be set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list (default), add, set, remove, on, off, test, presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channel; for set, behind it FIELD=VALUE, or FIELD= to take it away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the service wants to be told, as presets lists it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether it tells of all sites that name no channels of their own: on or off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password or token, in a file of one line; - is standard input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not ask before alerts that wait are removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or change the channels by which alerts leave, and try them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A password or token never stands on the command line: it is read from a file, or asked for, and kept in a file of the program folder that only you can read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit status of test: 0 when the message was sent, 1 when it was not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mail through a provider; the password is asked for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a web hook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>send a message, and see the answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>change it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the channels of one site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 alert is waiting: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 alerts are waiting: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 alert was given up: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 alerts were given up: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All alerts are delivered again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such alert in the outbox.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No alert %1 waits or was given up. They are listed by: tarnwickctl outbox</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No alert is waiting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not delivered yet: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 alert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop %1 for good? Nobody will be told of what they say.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dropped: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the alerts on their way through channels, have them tried now, or drop them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list (default), retry, drop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The alerts; all of them without one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List those that wait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List those that have arrived</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List those that were given up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not ask before alerts are dropped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An alert that cannot be delivered is tried again after 1, 5, 15 and then every 60 minutes, for a day, by a run or a window that is on, and by each check. The answer is that of who was asked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit status of retry: 0 when all were delivered, 1 when some were not.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what has become of the alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>try all that wait or were given up, now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>have one not told any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MADE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SITES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FOR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TRIES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NEXT TRY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ANSWER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KIND</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>behind a backslash stands n, for a line end, or a second backslash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no &quot;=&quot; between a name and a value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no address: give an example of one, as in address = https://example.org/</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is for people: give it one line of text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too long for a preset of a web hook.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no preset &quot;%1&quot;. The presets are: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preset %1, line %2: %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: line %2 differs as well, and does not look like what always changes: it stays watched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: line %2 differs, and nothing of it looks like what always changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no baseline yet, or the latest check brought no page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is fetched with --from-last: leave out --fetches and --over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetch nothing: propose what of the latest page&apos;s difference looks like a number, a key, a date or a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page differs by what is no change: let that vary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: expected %2, found %3; it looks like %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password is kept in the key ring of the desktop, which only the window reaches. Enter it here once more, and it is kept in a file of the program folder that only you can read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no member %1 beside the sites: the members are &quot;tarnwick&quot;, &quot;options&quot;, &quot;channels&quot; and &quot;sites&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A site whose id is in the list is changed, in the fields that the file has; one with another id is added under it, and one without an id is added as a new one. A channel takes the place of one that has its name. All of the file is taken, or nothing: each fault is told with its line.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The password or token of the channel %1 is not in the file: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A CSV file has no place for channels. They are in one whose name ends in .json.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds the passwords and tokens of the channels in clear. Keep it where nobody else can read it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the passwords and tokens of the channels as well, in clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>store the channels: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channels are stored: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>channels is no array of {&quot;name&quot;: &quot;...&quot;, &quot;kind&quot;: &quot;...&quot;, &quot;settings&quot;: {...}}: give one such object a channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the channel %1 is given twice: give each a name of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest page is that of the last check. What may vary or is left out by rules is no difference. Exit status: 0 when equal, 1 when they differ.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A message to any of many services, through an Apprise server of your own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A message in a channel of a chat that takes web hooks as Discord does</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A message on phones and in browsers, through a server of your own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A message in a room of Matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A notice on phones and desktops, through a public server or one of your own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A message in a channel of a chat that takes incoming web hooks as Slack does</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The end of the web hook&apos;s address, behind /webhooks/</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The end of the web hook&apos;s address, behind /services/</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The token of the application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The access token of the account that writes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The daily test alert has not arrived through %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The daily test alert has not arrived through %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The daily messages cannot leave: no channel is on for all sites.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The heartbeat is not taken: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The heartbeat is taken again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>answered with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 site names the channel %1 still. Who names no other one tells through those for all sites.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites name the channel %2 still. Who names no other one tells through those for all sites.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 cannot be changed: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What starts with the desktop cannot be changed: Windows has refused it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or change the tags of sites, by which they are found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id of a site, or a query as the verb sites takes it, or all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tags; without one they are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove these tags instead of adding them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>site 3 has these two tags as well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and one of them no more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every site of that host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say which tags are to be removed. See: tarnwickctl tag --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 would have more than %2 tags. Remove some first, with --remove.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no tag: give 1 to %2 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no tag: give a word without blanks, commas, semicolons and quotes, and no - before it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no tag: give 1 to %2 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no tag: give a word without blanks, commas, semicolons and quotes, and no - before it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change several sites at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let runs check them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave them out of runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set an option, or remove it with NAME=; may be given several times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a tag; may be given several times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove a tag; may be given several times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set their counters to 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only show what would change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All of them are changed, or none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what would change of which site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without a question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say what is to be changed. See: tarnwickctl change --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--option takes NAME=VALUE, and &quot;%1&quot; has no &quot;=&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option %1 holds for all sites. Set it with: tarnwickctl option all %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 sites stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 are changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ids of sites, as the verb sites lists them, or a query as that takes it, or all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name the sites either by their ids or by a query: &quot;%1&quot; is both. In a query a site is named as in id:3,7.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No site of the list is like that: %1. See them with: tarnwickctl sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no filter word. Write tag:, host: or id:, or put a text of an address in quotes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 needs a name behind it: write it without a blank, as in %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 names no site: give numbers with commas between them, as in id:3,7.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A &quot;-&quot; excludes what the word behind it finds: write it without a blank, as in -down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the last check failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the last check was good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down, with another page than the baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down, without a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed, but not often enough to be told</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down, and the wrong page is acknowledged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>answers too slowly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out of runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing is told of it now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>found while this machine was offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its certificate ends soon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>active, but nobody checks it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has this tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lies on this host, or below it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has this number, or one of several with commas between them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only those that all its words find; a - before a word excludes what it finds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only show which sites would be deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the latest pages of sites as their baselines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only sites that have changed as this one has; of all sites where none are named</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the baseline as well: either page is good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only show what would be accepted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also a page that looks like an error, or is much shorter than the baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exactly the bytes of the last check are taken. The baseline before is kept, ten of a site: the verb baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lists them and gives the last one back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shows what has changed, and asks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>two servers, two good pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>which sites have changed as site 3 has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all of them, without a question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say which sites. See: tarnwickctl accept --help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has not changed, so no site has changed as it has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 is as it should be: its latest page is a good one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest page of site %1 was not kept, since there was too little room on the disk. Make room, then fetch it with: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest check of site %1 brought no page but &quot;%2&quot;. Check again with: %3; if that is the page&apos;s own text, use --anyway.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest page of site %1 looks like an error page (%2). If it is how the page shall be, use --anyway.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest page of site %1 has less than half the size of the baseline (%2 bytes instead of %3). If it is how the page shall be, use --anyway.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 sites stay as they are: they have no page that could be accepted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 became %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the places that may vary %1 is not in this page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the places that may vary %1 are not in this page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is that page (%1 bytes) the new baseline of site %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is that page (%1 bytes) good for site %2, too?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are these pages the new baselines of %1 sites?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are these pages of %1 sites good, too?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1: the latest page is the baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1: the latest page is good, too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has %2 further good pages, and more are not kept. Remove one first, with: tarnwickctl baseline %3 drop NUMBER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say nothing of sites as long as exactly the wrong page stays that they have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell of them again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any other wrong page is told at once. As soon as a site is up again its acknowledgement is over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>somebody is at it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and is not any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 is told of again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 is known: nothing is told of it while exactly this page stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show which sites have changed, those together that have changed alike</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only of these sites, as the verb sites takes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>298 sites have a new year in the foot, and one a new price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the same of some sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No site has another page than its baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has no earlier baseline: none was kept, since no page was accepted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The baseline before is the baseline again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The baseline before is the baseline again. (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has no baseline beside that which the verb baseline shows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KEPT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BYTES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>good, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>replaced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 has no baseline of the number &quot;%2&quot;. See them with: tarnwickctl baseline %3 list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Baseline %1 of site %2 is removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only &quot;set&quot; takes a file, and &quot;drop&quot; a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show (default), load (fetch it from the URL now), set FILE, clear, accept (take the latest page), undo (the one before accept), list (those that are kept), drop NUMBER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file for &quot;set&quot;, - is standard input; the number for &quot;drop&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the one before it was accepted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the kept baseline &quot;%1&quot; is none: give it as an export writes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tags is no array: give [&quot;TAG&quot;, ...]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>baselines is no array: give it as an export writes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 cannot be put back, since another site has its id meanwhile. Delete that one first, or add the address anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the user and the password; some providers want a password made for programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check User, Password and Encryption: the server wants to know who sends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check From: most servers take the address of the account alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the address in To.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the name of the server; where its certificate is your own, name the CA file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the token.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The system makes no SHA-256 digest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 would have more than %2 tags. Remove some first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These sites hold more than 256 MB, which is too much to be kept until somebody wants them back. Nothing was deleted. Delete fewer at a time, or in a terminal with: tarnwickctl delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask for one of --json, --csv and --svg.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A picture is of one site: name one for --svg.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No history is kept. To keep it: tarnwickctl option all history=on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show when sites were up or down, and how long their answers took</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a picture of one site&apos;s stripes into this file; - is standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print each cell of each stripe as a row of CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of 24 hours, 7, 30, 90 and 365 days. Per cent are those of the time of which something is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option history says whether it is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stripes, figures and outages of a site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one line for each site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a picture for a web page or a mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print how the sites stand as figures for Prometheus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace this file as a whole instead, as the textfile collector of its node exporter wants it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every figure of every site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for the textfile collector, from cron</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the file %1 ends neither in .csv nor in .json, so its format is not known. Give it one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name of the file %1 ends neither in .svg nor in .png, so its format is not known. Give it one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 day (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It holds for %1 more, until %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It holds for %1 more, until %2. It was issued by %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It holds for %1 more, until %2. It was issued by %3, the one before by %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By options of the alarm it may be &quot;unconfirmed (1 of 3)&quot;, &quot;unsteady&quot;, &quot;slow&quot; or &quot;12 days&quot;, as long as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its certificate still holds, and &quot;unknown&quot; while this machine is offline; &quot;(paused)&quot; behind it says that</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing is told.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a page that tells others which sites are up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where to write it as index.html; the folder is made when it is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A run keeps it up to date by itself where the option statusPage names a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>once, as things stand now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Median</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>95 %%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slowest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down since</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In outages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show how the sites were in a month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As in 2026-11; without one the last that has ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write it as a page into this file; - is standard output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print one of its tables as CSV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per cent are those of the time of which something is known. An outage counts as far as it lies in the</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>month. Certificates are shown as they are now. With the option monthReport a run makes it by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of the last month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its outages, for a spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all its tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month %1, as it was known %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sites, the worst first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outages, the latest first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The slowest sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The certificates that end soonest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no month. Write it as in &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The month %1 has not begun. The present one is %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask for one of --json, --csv and --html.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 To write the report of that month elsewhere: tarnwickctl month-report %2 --html FILE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To set the option %1, write: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The history would be taken in, too (sites: %1, hours: %2, outages: %3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The history is taken in, too (sites: %1, hours: %2, outages: %3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the history of each site as well: its hours, days and months, and its outages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds what has been set for each site, with its POST variables, and as JSON the channels; what checks have found is part of it only where the history is wanted. Only you can read it, and one that is there already is replaced when the new one is complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>history is no array: give it as an export writes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; is none: give it as an export writes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; begins at no full hour of any clock: give the seconds since 1970 at which it began</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; has %2 seconds: give it 1 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; was up and unknown for longer than its %2 seconds: the two together are as much at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; tells how long more answers took than it had checks: give it as many checks at least</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; ended before it began: give the end as the second number, or - while it is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest page of site %1 is empty, which cannot be a baseline. Check again with: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
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
        <source>Site</source>
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
    <message>
        <source>5 s, 20 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A page that took longer is a warning, with a colour and an alert of its own; the site is up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dated times that are quiet as well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down for real after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hosts of which at least one answers as long as this machine is online</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long nothing is told; checks go on, and what is still so afterwards is told then</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many checks in a row must fail before it is told; the check is repeated in the same pass, at another address of the host if it has several</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In quiet hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look again after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More changes between up and down within that time are told as one alert, and then nothing until the site has held still for as long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slow: an answer after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell when it is up again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The hours of the week in which nothing is told; what is still so is told when they end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pauses before a failed check is repeated; the last one holds for all further ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine&apos;s own network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsteady: more changes than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What follows the first alert of an outage: one every so many minutes, one after 1, 2, 4 ... hours (&quot;growing&quot;), none (&quot;never&quot;) or one with every failed check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When nothing answers, ask whether this machine is online; as long as it is not, nothing is counted as down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a site is checked in its quiet hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether anything is told at all; with &quot;off&quot; a site is checked and recorded, and nobody is told</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether one alert tells that a site is up again, how long it was down and why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While it stays down remind every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Witness hosts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;until 2026-12-01 08:00&quot;, &quot;for good&quot; or &quot;no&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a failed check raises the alerts of the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number of changes and of minutes, as in &quot;5 in 30 min&quot;, or &quot;off&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a site whose server cannot be reached is down, also when this machine is offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>days and hours, as in &quot;Mon-Fri 22:00-6:00, Sat, Sun 0:00-24:00&quot; or &quot;daily 22-6&quot;, or &quot;none&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>do not check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>each change is told for itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every failed check is told</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>growing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hosts parted by commas, as in &quot;example.org, 192.0.2.1:53&quot;, or &quot;none&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it does not matter how long an answer takes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keep alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no host is asked, the machine is online when it knows a way to the Internet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody is told that a site is up again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sites are checked in quiet hours, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the alerts are not paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the first failed check is told</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are no quiet hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no maintenance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>times parted by semicolons, each perhaps with &quot;do not check&quot; or &quot;keep alerts&quot; and a note, as in &quot;2026-12-01 08:00 to 2026-12-01 12:00, do not check: new server&quot;, or &quot;none&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up to ten pauses of 1 to 300 seconds, as in &quot;5 s, 20 s&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause and quiet hours of all sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm and options of this site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What becomes the baseline of a site that has none; with &quot;pages only&quot; a fetch that failed, an error page of the server or a page that is suddenly less than half as long does not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channels by which its alerts leave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>names of channels parted by commas, as in &quot;phone, office mail&quot;, or &quot;none&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the channels that are there for all sites, if any is set up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An address that is asked once a minute while a run is on, so that somebody notices when it is not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Heartbeat to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test alert daily at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When a message with the figures of the day leaves through the channels, each day that a run is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When an alert leaves that only tries the channels; one that does not arrive is told by the outbox</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;All is well&quot; daily at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a time of the day, as in &quot;8:00&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an address that begins with http:// or https://</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no alert is sent that only tries the channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nobody is told that a run is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing is told while all is well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Outbox…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ways by which alerts leave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>587, with TLS 465, without encryption 25</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A mail through the mail server of your provider, or one of your own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A notice of the desktop, while the window is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A program that is started, with what has happened in its command line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A program that prints the token for xoauth2; it is run before each mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A request to an address of a service that tells people, as ntfy, Gotify or a chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sound on this machine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attach the page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bundle from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From so many alerts of one pass on they leave as one message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Further headers, one a line, as in &quot;Authorization: Bearer {secret}&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Headers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How to log in; xoauth2 with a token, as some providers want it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>POST</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The .wav file that is played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The command line, with the same placeholders as that of the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server, by its name or address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The method of the request</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name to log in with, often the mail address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Token command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Token</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web hook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is sent; placeholders are filled in, escaped for its form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the body is, for the escaping of what is filled in and the header that tells it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the request goes; placeholders such as {secret} are filled in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where the server listens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the line is encrypted: asked for after the greeting, from the first byte on, or not at all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the whole page is attached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who is told</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whose mail it is; most servers want the address of your own account here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>each alert is a message of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>json</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lines of a name, a colon and a value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no header of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one line of text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one mail address or more, parted by commas, as in &quot;me@example.org, team@example.org&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one mail address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>plain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>starttls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>starttls: nothing but the greeting is sent before the line is encrypted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the best way that the server offers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the difference alone is in the mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the password is used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>those of the system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>xoauth2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{title}, a line end and {text}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file with the certificate authorities (PEM) to trust for this server, as for a certificate of your own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CA file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the user, where that is an address; else the first address of who is told</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>without a log-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List and details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether it is kept for years when each site was up or down, and how long its answers took</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>only the log tells of checks that are over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do You Want To Replace The File %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Addresses…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture, for a web page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture, for a mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;riginal Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A Clic&amp;k on a Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;History of All Sites…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After how many days the history keeps only the sums of days and months, which stay as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hours of the history for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the history keeps each hour for good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificate: warn before it ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So many days before the certificate of a site ends, or when a third of its lifetime is left, there is a warning, with a colour and an alert of its own; so there is an alert when another authority has issued it; the site is up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>numbers of days parted by commas, as in &quot;21, 7, 1&quot;, &quot;third&quot; for a third of its lifetime, or &quot;off&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of a certificate it matters only whether it holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file in which a run keeps figures of all sites for Prometheus, as its textfile collector reads them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder in which a run keeps a page for others, index.html: which sites are up now, and 30 days of each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metrics in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status page in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>figures leave by &quot;tarnwickctl metrics&quot; only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no page tells others how the sites stand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month&apos;s report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether a run makes a report of each month that has ended: as a file in the folder reports, and as a message by the channels that are on for all sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a report of a month is made by &quot;tarnwickctl month-report&quot; only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::AcceptDialog</name>
    <message>
        <source>Accept a Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What changed in site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in &amp;place of the baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;beside it: either page is good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This page becomes the baseline of site %1: %2 instead of %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, 1 change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 changes.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::AddressesDialog</name>
    <message>
        <source>Add Addresses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Addresses, one a line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Addresses, &amp;one a line:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste or type addresses.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 there already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 is none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 are none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 address: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 addresses: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for another program, which has the list locked ...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::AlarmDetails</name>
    <message>
        <source>In detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failures until it is down for real</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look again after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pauses before a failed check is repeated, as in &quot;5 s, 20 s&quot;; the last one holds for all further ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down for real after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failures; look again after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A failed check is repeated at once; only when so many have failed in a row it is told</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell me when it is up again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While it stays down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tell me at every failed check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>say no more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remind me every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remind me after 1, 2, 4 … hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes between two reminders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes that are borne</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes in which they are borne</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsteady: over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changes in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>min are one alert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Milliseconds of a slow answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slow: an answer after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a warning, never &quot;down&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Days before the certificate ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One warning for each of these, as in &quot;21, 7, 1&quot;; &quot;third&quot; is a third of the certificate&apos;s lifetime</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificate: warn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>days before it ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A site whose certificate ends soon, or is from another authority than before, is a warning, never &quot;down&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::AlarmPage</name>
    <message>
        <source>a channel that is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not delivered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failing since %1: %2 of %3 failures in a row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down for real since %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down for real since %1, %2 failures in a row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down with a page that is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsteady: up and down all the time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up, but slow.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown since %1, as this machine is offline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused %1: nothing is told.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is a quiet time: nothing is told.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never: its alerts are off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When the next check fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When the next %1 checks in a row fail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With each check that fails, and when it is back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With each check that fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From %1 on, if it is still down, or when it is back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From %1 on, if it is still down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When it is back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing more until it has been up and fails again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When another wrong page comes, or none at all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When it has been steady for a while.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When the quiet time or pause ends, if it is still so.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a mail to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is set up: nobody is told.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Told last:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Told next:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Through:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;hange…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose when and how is told of this site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up, but its certificate ends in 1 day.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up, but its certificate ends in %1 days.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::AlarmSection</name>
    <message>
        <source>Tell me</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At every failed check (as the original)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As in Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At every failed check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only when it is down for real,
and when it is back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My own choice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The hours of the week, and dated windows, of this site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In quiet hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell again; stored with OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As in Defaults (at every failed check)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As in Defaults (down for real, and back)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As in Defaults (never)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As in Defaults (see the details)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as for all sites: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::AlarmStrip</name>
    <message>
        <source>What would happen: 1 alert for an outage of %1 minutes (at every failed check: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What would happen: %3 alerts for an outage of %1 minutes (at every failed check: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>up again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 checks, nothing said</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 checks, %2 alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down for real</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>looked again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>still down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>told %1 times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>you are told</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::AlarmWords</name>
    <message>
        <source>Mon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Friday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tomorrow %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>until %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no quiet hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>daily</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>do not check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check, and keep the alerts until they end</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::AmberLine</name>
    <message>
        <source>%1 %</source>
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
    <name>tarnwick::ChangeDialog</name>
    <message>
        <source>&amp;Check every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minutes between two checks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell me</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change %1 Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leave them out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Runs:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tell me:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ChangeWindow</name>
    <message>
        <source>&amp;Accept…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the page of the latest check as the baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What Changed in Site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What changed in site %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelChoice</name>
    <message>
        <source>Through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send a test message through these channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test: send a test message through these channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All that are default for all sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As in Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No channel is set up: see Channels in the settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Defaults: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The channels by which the alerts leave: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testing …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ok: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelForm</name>
    <message>
        <source>STARTTLS required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TLS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none: nothing is encrypted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. It has to be set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. Unset: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>each alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By which name sites and lists call it: one line without commas.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept in the desktop&apos;s key ring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept in a file only you can read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kept, type to replace it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelList</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ok %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>refused %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelMenu</name>
    <message>
        <source>%1. What is in capitals in the address is yours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. The password or token: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any Other Service</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelTrial</name>
    <message>
        <source>Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send a test message with what stands in the fields, stored or not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answer to the test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter the password or token first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Testing …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent. Look whether it has arrived.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelsPage</name>
    <message>
        <source>Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the chosen channel away; stored with OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default for all sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It tells of all sites that name no channels of their own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another way by which alerts leave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail now goes by: the original exchange, port 25. A channel of the kind mail replaces it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do You Want To Remove The Channel %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alerts that wait for it are not delivered, and sites that name it tell nothing through it any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a way by which alerts shall reach you: a mail through your provider, a web hook of a service for phones or a chat, a notice on this desktop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 site names it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites name it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail now goes by: the channels of the kind mail. The original exchange is not used.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ClickRule</name>
    <message>
        <source>&amp;Opens the Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shows What Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Then a double click and Enter open the site</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ColumnChoice</name>
    <message>
        <source>&amp;Original Columns</source>
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
    <message>
        <source>&amp;Holes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what may vary in the page, and choose it</source>
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
    <name>tarnwick::DatedWindowsModel</name>
    <message>
        <source>as in quiet hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Until</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::DatedWindowsTable</name>
    <message>
        <source>Dated windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a time, tomorrow from 8:00 on; change it there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the chosen time (Del)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::DeliveryWords</name>
    <message>
        <source>does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is still down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is up again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is unsteady</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is slow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine is online again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A test of Tarnwick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The daily test alert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All is well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has a certificate that ends soon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has a certificate from another authority</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::DetailsArea</name>
    <message>
        <source>Show &amp;What Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Accept…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accept A&amp;lso…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo Accept…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Same Change on Many Sites…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1: the new page is the baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites: the new pages are the baselines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo Accept of Site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo Accept of %1 Sites</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::DetailsPane</name>
    <message>
        <source>Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Accept…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ac&amp;knowledge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell nothing of the site for a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the details (F4)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show it in a window of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log of the site, the latest first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details of site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What changed in site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a site to see what changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no changed page to accept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetch the page again, at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the page of the latest check as the baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm A&amp;gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing wrong to acknowledge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell of this page again, at each failed check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Known: say nothing while exactly this page stays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell of the site again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let It Vary…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The change looks like %1, which always changes: it need not count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 is settled: its next check finds it up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same Change…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show which of these sites have changed in the same way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites selected: %2 down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose one site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Check Now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::DifferencePanel</name>
    <message>
        <source>Previous change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How both pages are laid out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes (hex)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show blanks, tabs and line ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1 changes, shown as one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As seen</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::DifferenceView</name>
    <message>
        <source>%1 equal bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 equal line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 equal lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comparing …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Both pages are empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ExportDialog</name>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Passwords of the sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Baselines: the pages that they are compared with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;History: when they were up or down, and how fast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV is for a spreadsheet. JSON has the channels, too, without their passwords and tokens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Choose File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is set for each site is in the file, and on wish:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV, for a spreadsheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON, with all that is set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sites written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported 1 site to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported %1 sites to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::ExtraColumns</name>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the site stands, and since when</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the last check found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long ago the site was checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Latency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How long the last check took</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When the site is checked again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The words by which the site is found: tag:X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When the certificate of the site ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as the baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no run is on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at the next Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>after quiet hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ends %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, issued by %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>just now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1 h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in %1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>certificate: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::FirstSteps</name>
    <message>
        <source>Which page shall be watched?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose how…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add your first site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1. Which page shall be watched?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2. Start watching. The page as it is now becomes the baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3. Be told when it changes or does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no address of a page: enter one like https://example.org/</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can also add many addresses at once, or import a list: the button List.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step 2 of 3: start watching.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step 3 of 3: be told when something happens.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose How…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::HistoryPage</name>
    <message>
        <source>Answer times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outages, the latest first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter, or a double click, shows what came at the first failed check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No history is kept: only the log tells how the sites have been.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From now on keep for years when each site was up or down; the log is read into it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which periods are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All periods</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the stripes into a picture, SVG or PNG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Median %1, slowest %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the answers of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep th&amp;e History</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::HistoryWindow</name>
    <message>
        <source>Filter the sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which period is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sites, the worst first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History of All Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter: down, never, tag:shop …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the stripes into a picture, SVG or PNG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter, or a double click, shows the history of a site alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History of All Sites, %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::HoleTableModel</name>
    <message>
        <source>digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>base64</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>letters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time or date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>one of a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>anything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>place not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text around it is not in the baseline any more. OK drops it; it comes back if you undo the edit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not known: there is no page yet, or it differs from the baseline before this place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; separators do not count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last seen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: proposed. OK stores it, Remove drops it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, proposed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::HolesPanel</name>
    <message>
        <source>What may vary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May &amp;Vary Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the text that is selected on the left vary (Ctrl+M)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;earn…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetch the page several times, and see what varies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watch the chosen place again (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What may vary (%1 stays watched)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only %1 stays watched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rules…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare only parts of the page, or leave parts out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page of the latest check; what is left out is shaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The baseline; what is left out is shaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rules (%1)…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking at the difference from the latest page …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest page does not differ.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 differs, and nothing of it looks like what always changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Line %2 differs as well: it stays watched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. %2 stays watched.</source>
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
        <source>Comparing with the list ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taking the sites into the list ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for another program, which has the list locked ...</source>
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
    <name>tarnwick::LatencyView</name>
    <message>
        <source>Answer times: nothing is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answer times: median %1, 95 of 100 within %2, slowest %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up to %1 (line: median, dashed: 95 of 100)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: median %2, 95 of 100 within %3, slowest %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::LearnDialog</name>
    <message>
        <source>%1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The baseline has no place for: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page differs from the baseline also in line %1: take the page as it is now as the baseline first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Learn What Varies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page is fetched several times. What differs from one time to another is shown then, and nothing is stored yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take These</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let these places vary; OK of the content stores them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop fetching, and close without a change (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetch so many times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>over so long a time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetch the page that often</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fetch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was learnt.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fetching the page …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing varies: the page was the same each time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 place: %1. %2 of the page stays watched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 places: %2. %3 of the page stays watched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking at what varies …</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::LogList</name>
    <message>
        <source>up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cause</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::MailWayHint</name>
    <message>
        <source>Channels…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This server is not used; mail goes by:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With a log-in, to a phone or to a chat:</source>
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
    <name>tarnwick::NoticeButton</name>
    <message>
        <source>Esc puts it away</source>
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
    <message>
        <source>tomorrow %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This machine is offline since %1. Nothing is counted as down.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alerts are paused until %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alerts are paused for good.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No alert can be delivered: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 alert is waiting: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 alerts are waiting: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outbox…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The daily test alert has not arrived through %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The daily test alert has not arrived through %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The heartbeat is not taken: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The daily messages cannot leave: no channel is on for all sites.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Channels…</source>
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
    <message>
        <source>This machine&apos;s own network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figures for Prometheus</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::OutageList</name>
    <message>
        <source>Until %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 check has failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 checks have failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down since</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cause</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::OutboxDialog</name>
    <message>
        <source>Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is waiting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has been sent yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was given up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Retry Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try those that are chosen again at once; all of this page where none is chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Drop…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take those that are chosen out, so that they are not delivered; all of this page where none is chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open C&amp;hannel…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings of the channel that the chosen alert goes through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy those that are chosen as text, or all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This alert will not be delivered:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These %1 alerts will not be delivered:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do You Want To Drop It?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do You Want To Drop Them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The whole answer, and the whole alert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an alert to read it, and the whole answer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::OutboxModel</name>
    <message>
        <source>%1, through %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1: %2, through %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next try</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last try</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Since</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Through</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a channel that is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>soon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::OverviewList</name>
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
</context>
<context>
    <name>tarnwick::PageHeads</name>
    <message>
        <source>Compare with another good page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::PausePage</name>
    <message>
        <source>Right now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused for 1 hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused until tomorrow 8:00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused until …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused for good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While the alerts are paused sites are checked, and what is still so afterwards is told then</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused until</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In quiet hours</source>
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
    <name>tarnwick::QuietHoursDialog</name>
    <message>
        <source>Quiet Hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close without a change (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::QuietHoursForm</name>
    <message>
        <source>Quiet hours each week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag over hours, or use arrows and Space. Local time: an hour that comes twice is quiet twice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dated windows</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::RowActions</name>
    <message>
        <source>Check %1 sites now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 are not active and are not checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell of %1 sites again?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 are not acknowledged and stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ending acknowledgements ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acknowledge the wrong pages of %1 sites? Nothing is said of them while exactly these pages stay.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 have no such page and stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acknowledging pages ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause the alerts of %1 sites %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pausing alerts ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume the alerts of %1 sites?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 are not paused and stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resuming alerts ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the counters of this site to 0?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set the counters of %1 sites to 0?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 are at 0 and stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do You Want To Delete This Site?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do You Want To Delete These %1 Sites?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting sites ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check 1 site now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 is not active and is not checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell of 1 site again?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 is not acknowledged and stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Acknowledge the wrong page of 1 site? Nothing is said of it while exactly this page stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 has no such page and stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume the alerts of 1 site?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 is not paused and stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 is at 0 and stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clearing counters ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changing sites ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 was deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites were deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo Delete Site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo Delete %1 Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Putting sites back ...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::RuleTableModel</name>
    <message>
        <source>Rule %1 matches nothing: it would not be watched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>compare only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>leave out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>regular expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XPath</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not understood</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>matches nothing: would not be watched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matches now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::RulesDialog</name>
    <message>
        <source>Rules of the Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the chosen rule (Del)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare by these rules; OK of the content stores them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close without a change (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the page stays watched</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SameChanges</name>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has come</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 became %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sites that have changed alike</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Accept…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same Change on Many Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comparing …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No site has another page than its baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick the changes that were meant:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What changed in site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Accept %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest page of 1 site becomes its baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest pages of %1 sites become their baselines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The baselines before are kept. Do You Want To Accept Them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 stay as they are: they have another page by now, or one that looks like an error.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SeenPicture</name>
    <message>
        <source>A picture of %1 × %2 is too large to be drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture cannot be drawn: it is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SeenView</name>
    <message>
        <source>The baseline, simplified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest page, simplified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simplified: without pictures, scripts and the network.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 pixels became %3 × %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each pixel is the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 pixels differ (%3 %).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SettlingWords</name>
    <message>
        <source>There is no site %1 any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 is as it should be.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 changed, and its page was not kept for want of room.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 changed, which is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The latest check brought no page, but the text of an error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This looks like an error page (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has less than half the size of the baseline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 place that may vary is not found in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 places that may vary are not found in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>− Baseline, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+ Latest check %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+ Latest check, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>− Good as well since %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>− Baseline until %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 is new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1 differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lines %1 to %2 are gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lines %1 to %2 are new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>lines %1 to %2 differ</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 more changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bytes differ in 1 place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bytes differ in %1 places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+ Check of %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The check of %1 brought no page: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No page of site %1 is here yet: the next check brings it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 answered with an empty page, which is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site %1 answered with an empty page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The page of %1 was empty, or is not kept any more.</source>
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
    <name>tarnwick::SiteExtras</name>
    <message>
        <source>line %1 differs</source>
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
    <name>tarnwick::SiteMenu</name>
    <message>
        <source>&amp;Open Site…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for 1 &amp;Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>until &amp;Tomorrow 8:00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Until…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for &amp;Good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell nothing until</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Always C&amp;hanges…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check &amp;Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ac&amp;knowledge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset Counters…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open in &amp;Browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cop&amp;y Rows as Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose one site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No page differs from its baseline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site is not active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no wrong page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The counters are at 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm A&amp;gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tags…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteReason</name>
    <message>
        <source>Site %1: %2 (F4)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteSearch</name>
    <message>
        <source>Filter the list of sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter: down, never, tag:shop … (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the original order again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No site matches.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show All Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorted by %1 ✕</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 site, %1 down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites, %2 down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorted by %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteSettling</name>
    <message>
        <source>Site %1 has no earlier baseline.</source>
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
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unsteady</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>slow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteWork</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::SitesDialog</name>
    <message>
        <source>Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is changed yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comparing: %1 of %2 ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 site changes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sites change.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All of them are so already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::Stripe</name>
    <message>
        <source>Down from %1 to %2 (%3): %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down since %1 (%2): %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: nothing is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 up, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no outage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 outage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 outages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Median %1, slowest %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::TagsDialog</name>
    <message>
        <source>Tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New tags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tags of Site %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tags of %1 Sites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New tags:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::Tray</name>
    <message>
        <source>Open %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause Alerts for 1 Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outbox…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume Alerts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outbox: %1 waiting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No site is active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of 1 site down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 sites down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::UndoNotice</name>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
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
<context>
    <name>tarnwick::WeekMapModel</name>
    <message>
        <source>%1 %2 to %3: quiet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 to %3: not quiet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tarnwick::WindowFrame</name>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close to the tray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing the window leaves the program in the tray, as long as there is one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop has no tray: closing the window ends the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The window opens when you log in to this desktop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
