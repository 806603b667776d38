<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Messages</name>
    <message>
        <source>Loading ...</source>
        <translation>Lädt ...</translation>
    </message>
    <message>
        <source>Ready ...</source>
        <translation>Bereit ...</translation>
    </message>
    <message>
        <source>Running.</source>
        <translation>Läuft.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Angehalten.</translation>
    </message>
    <message>
        <source>Testing:</source>
        <translation>Prüft:</translation>
    </message>
    <message>
        <source>Testing: %1</source>
        <translation>Prüft: %1</translation>
    </message>
    <message>
        <source>Time Until Next Check: %1</source>
        <translation>Zeit bis zur nächsten Prüfung: %1</translation>
    </message>
    <message>
        <source>Run Time: %1</source>
        <translation>Laufzeit: %1</translation>
    </message>
    <message>
        <source>No countdown: site %1 is still being entered.</source>
        <translation>Kein Countdown: Seite %1 wird noch eingegeben.</translation>
    </message>
    <message>
        <source>No countdown: site %1, never checked, waits for the next Start.</source>
        <translation>Kein Countdown: Seite %1, nie geprüft, wartet auf den nächsten Start.</translation>
    </message>
    <message>
        <source>No countdown: %1 sites, never checked, wait for the next Start.</source>
        <translation>Kein Countdown: %1 Seiten, nie geprüft, warten auf den nächsten Start.</translation>
    </message>
    <message>
        <source>Creating Report ...</source>
        <translation>Schreibt den Bericht ...</translation>
    </message>
    <message>
        <source>Report Done ...</source>
        <translation>Bericht fertig ...</translation>
    </message>
    <message>
        <source>You must enter a valid email address.</source>
        <translation>Geben Sie bitte eine gültige E-Mail-Adresse ein.</translation>
    </message>
    <message>
        <source>Are You Sure You Want To Delete All Logs?</source>
        <translation>Möchten Sie wirklich das ganze Log löschen?</translation>
    </message>
    <message>
        <source>Compacting the database may take several minutes and disable this application during that time. Are You Sure You Want To Compact This DataBase?</source>
        <translation>Das Verdichten der Datenbank kann mehrere Minuten dauern, in denen dieses Programm nichts anderes tut. Möchten Sie die Datenbank wirklich verdichten?</translation>
    </message>
    <message>
        <source>Compact Failed - Data May Be Corrupt</source>
        <translation>Verdichten gescheitert - die Daten können beschädigt sein</translation>
    </message>
    <message>
        <source>Compact Successful</source>
        <translation>Verdichten gelungen</translation>
    </message>
    <message>
        <source>Logs Cleared</source>
        <translation>Log geleert</translation>
    </message>
    <message>
        <source>Aborting compact:</source>
        <translation>Verdichten abgebrochen:</translation>
    </message>
    <message>
        <source>Do You Want To Delete This Site?</source>
        <translation>Möchten Sie diese Seite löschen?</translation>
    </message>
    <message>
        <source>This site is fetched with GET; what it has of POST variables is kept but not sent.</source>
        <translation>Diese Seite wird mit GET geholt; ihre POST-Variablen bleiben erhalten, werden aber nicht gesendet.</translation>
    </message>
    <message>
        <source>The site %1 is not in the list any more. Close its editor; to watch it again, add it with New.</source>
        <translation>Die Seite %1 steht nicht mehr in der Liste. Schließen Sie ihr Fenster; um sie wieder zu beobachten, fügen Sie sie mit „Neu“ hinzu.</translation>
    </message>
    <message>
        <source>The interval of site %1</source>
        <translation>Der Abstand von Seite %1</translation>
    </message>
    <message>
        <source>Lists of Sites</source>
        <translation>Listen von Seiten</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>Tondateien</translation>
    </message>
    <message>
        <source>Program Files</source>
        <translation>Programmdateien</translation>
    </message>
    <message>
        <source>The mail is left out, since the mail server %1 has not taken an earlier one in time.</source>
        <translation>Die Mail entfällt, da der Mail-Server %1 eine frühere nicht rechtzeitig angenommen hat.</translation>
    </message>
    <message>
        <source>The mail server %1 has not taken the mail within %2; the other mails of this pass to it are left out.</source>
        <translation>Der Mail-Server %1 hat die Mail nicht innerhalb von %2 angenommen; die übrigen Mails dieses Durchgangs an ihn entfallen.</translation>
    </message>
    <message>
        <source>1 second</source>
        <translation>1 Sekunde</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>No mail server is set, so the mail could not be sent.</source>
        <translation>Es ist kein Mail-Server eingestellt, daher konnte die Mail nicht gesendet werden.</translation>
    </message>
    <message>
        <source>The mail was given up when the run was stopped.</source>
        <translation>Die Mail wurde aufgegeben, als der Lauf beendet wurde.</translation>
    </message>
    <message>
        <source>The mail server %1 could not be reached or refused the mail.</source>
        <translation>Der Mail-Server %1 war nicht erreichbar oder hat die Mail abgelehnt.</translation>
    </message>
    <message>
        <source>the baseline was changed meanwhile</source>
        <translation>die Basis wurde inzwischen geändert</translation>
    </message>
    <message>
        <source>line %1: the page goes on behind this line, the baseline ends with it</source>
        <translation>Zeile %1: Die Seite geht hinter dieser Zeile weiter, die Basis endet mit ihr</translation>
    </message>
    <message>
        <source>line %1: the page ends with this line, the baseline goes on</source>
        <translation>Zeile %1: Die Seite endet mit dieser Zeile, die Basis geht weiter</translation>
    </message>
    <message>
        <source>line %1: expected %2, found %3</source>
        <translation>Zeile %1: erwartet %2, gefunden %3</translation>
    </message>
    <message>
        <source>the fetch fails, and its text is the baseline: %1</source>
        <translation>der Abruf scheitert, und sein Text ist die Basis: %1</translation>
    </message>
    <message>
        <source>the page differs from the baseline, and was not kept: there is too little room on the disk</source>
        <translation>die Seite weicht von der Basis ab und wurde nicht aufgehoben: Auf der Platte ist zu wenig Platz</translation>
    </message>
    <message>
        <source>The page was not kept: there is too little room on the disk.</source>
        <translation>Die Seite wurde nicht aufgehoben: Auf der Platte ist zu wenig Platz.</translation>
    </message>
    <message>
        <source>The address of the site is empty.</source>
        <translation>Die Adresse der Seite ist leer.</translation>
    </message>
    <message>
        <source>%1 Site %2 is due again.</source>
        <translation>%1 Seite %2 ist wieder fällig.</translation>
    </message>
    <message>
        <source>There is not enough memory for the check of site %1. End other programs.</source>
        <translation>Für die Prüfung von Seite %1 reicht der Speicher nicht. Beenden Sie andere Programme.</translation>
    </message>
    <message>
        <source>Overflow: the %1 counter of site %2 (%3) stands at %4 and cannot count further. Clear the counters in the site&apos;s Counters dialog.</source>
        <translation>Überlauf: Der Zähler %1 von Seite %2 (%3) steht auf %4 und kann nicht weiter zählen. Setzen Sie die Zähler im Fenster „Zähler“ der Seite zurück.</translation>
    </message>
    <message>
        <source>There is no choice of sites with the number %1.</source>
        <translation>Es gibt keine Auswahl von Seiten mit der Nummer %1.</translation>
    </message>
    <message>
        <source>The request took longer than %1.</source>
        <translation>Die Abfrage dauerte länger als %1.</translation>
    </message>
    <message>
        <source>No connection to the proxy server %1 could be made.</source>
        <translation>Zum Proxy-Server %1 kam keine Verbindung zustande.</translation>
    </message>
    <message>
        <source>The server %1 gives its files out at a port that cannot be reached.</source>
        <translation>Der Server %1 gibt seine Dateien auf einem Port aus, der nicht erreichbar ist.</translation>
    </message>
    <message>
        <source>The connection to %1 was refused.</source>
        <translation>Die Verbindung zu %1 wurde abgelehnt.</translation>
    </message>
    <message>
        <source>The host %1 cannot be reached from this machine.</source>
        <translation>Der Rechner %1 ist von diesem Rechner aus nicht erreichbar.</translation>
    </message>
    <message>
        <source>The host %1 does not answer.</source>
        <translation>Der Rechner %1 antwortet nicht.</translation>
    </message>
    <message>
        <source>No connection to %1 could be made.</source>
        <translation>Zu %1 kam keine Verbindung zustande.</translation>
    </message>
    <message>
        <source>The certificate of the server %1 could not be verified: %2.</source>
        <translation>Das Zertifikat des Servers %1 konnte nicht geprüft werden: %2.</translation>
    </message>
    <message>
        <source>it is not valid</source>
        <translation>es ist nicht gültig</translation>
    </message>
    <message>
        <source>nobody whom this machine trusts has issued it</source>
        <translation>niemand, dem dieser Rechner vertraut, hat es ausgestellt</translation>
    </message>
    <message>
        <source>it was issued for another host</source>
        <translation>es wurde für einen anderen Rechner ausgestellt</translation>
    </message>
    <message>
        <source>it has expired</source>
        <translation>es ist abgelaufen</translation>
    </message>
    <message>
        <source>it is not valid yet</source>
        <translation>es ist noch nicht gültig</translation>
    </message>
    <message>
        <source>The server %1 redirected to an address that is not valid.</source>
        <translation>Der Server %1 leitete an eine ungültige Adresse weiter.</translation>
    </message>
    <message>
        <source>This machine has no more file handles for Tarnwick.</source>
        <translation>Dieser Rechner hat keine Dateihandles mehr für Tarnwick.</translation>
    </message>
    <message>
        <source>This machine has not enough memory for another connection.</source>
        <translation>Dieser Rechner hat nicht genug Speicher für eine weitere Verbindung.</translation>
    </message>
    <message>
        <source>The server %1 closed the connection without an answer.</source>
        <translation>Der Server %1 schloss die Verbindung ohne Antwort.</translation>
    </message>
    <message>
        <source>No secure connection to %1 could be made: the server closed the connection.</source>
        <translation>Zu %1 kam keine sichere Verbindung zustande: Der Server schloss die Verbindung.</translation>
    </message>
    <message>
        <source>No secure connection to %1 could be made: %2.</source>
        <translation>Zu %1 kam keine sichere Verbindung zustande: %2.</translation>
    </message>
    <message>
        <source>No secure connection to %1 could be made.</source>
        <translation>Zu %1 kam keine sichere Verbindung zustande.</translation>
    </message>
    <message>
        <source>The name of the host %1 could not be found.</source>
        <translation>Der Name des Rechners %1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The name of the proxy server could not be found.</source>
        <translation>Der Name des Proxy-Servers wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The system&apos;s file of trusted certificates could not be read.</source>
        <translation>Die Datei der vertrauenswürdigen Zertifikate des Systems konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file of trusted certificates %1 could not be read.</source>
        <translation>Die Datei der vertrauenswürdigen Zertifikate %1 konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The transfer library cannot be used: %1</source>
        <translation>Die Übertragungsbibliothek lässt sich nicht benutzen: %1</translation>
    </message>
    <message>
        <source>The header of the answer is too large.</source>
        <translation>Der Kopf der Antwort ist zu groß.</translation>
    </message>
    <message>
        <source>The server %1 did not answer in the language of %2.</source>
        <translation>Der Server %1 antwortete nicht in der Sprache von %2.</translation>
    </message>
    <message>
        <source>The answer of the server %1 is damaged: %2.</source>
        <translation>Die Antwort des Servers %1 ist beschädigt: %2.</translation>
    </message>
    <message>
        <source>its length is not clear</source>
        <translation>ihre Länge ist nicht klar</translation>
    </message>
    <message>
        <source>bad trailer</source>
        <translation>der Nachspann ist fehlerhaft</translation>
    </message>
    <message>
        <source>bad chunk</source>
        <translation>ein Stück ist fehlerhaft</translation>
    </message>
    <message>
        <source>The compressed answer of the server %1 could not be decoded.</source>
        <translation>Die komprimierte Antwort des Servers %1 konnte nicht entpackt werden.</translation>
    </message>
    <message>
        <source>The compressed answer of the server %1 is incomplete.</source>
        <translation>Die komprimierte Antwort des Servers %1 ist unvollständig.</translation>
    </message>
    <message>
        <source>The page is larger than %1.</source>
        <translation>Die Seite ist größer als %1.</translation>
    </message>
    <message>
        <source>The proxy server %1 made no connection to %2.</source>
        <translation>Der Proxy-Server %1 stellte keine Verbindung zu %2 her.</translation>
    </message>
    <message>
        <source>The server %1 broke the connection off during its answer.</source>
        <translation>Der Server %1 brach die Verbindung während seiner Antwort ab.</translation>
    </message>
    <message>
        <source>The server %1 redirected to an address of a kind that is not fetched; only http, https, ftp and ftps are.</source>
        <translation>Der Server %1 leitete an eine Adresse einer Art weiter, die nicht geholt wird; geholt werden nur http, https, ftp und ftps.</translation>
    </message>
    <message>
        <source>The server %1 asked for the user name and the password again and again.</source>
        <translation>Der Server %1 fragte immer wieder nach Benutzername und Passwort.</translation>
    </message>
    <message>
        <source>The server redirected more than %1 times.</source>
        <translation>Der Server leitete mehr als %1 Mal weiter.</translation>
    </message>
    <message>
        <source>The server %1 did not confirm the end of the transfer.</source>
        <translation>Der Server %1 bestätigte das Ende der Übertragung nicht.</translation>
    </message>
    <message>
        <source>The server %1 is not available for now.</source>
        <translation>Der Server %1 steht zurzeit nicht zur Verfügung.</translation>
    </message>
    <message>
        <source>The server %1 redirected to an address that holds a name and a password.</source>
        <translation>Der Server %1 leitete an eine Adresse weiter, die Name und Passwort enthält.</translation>
    </message>
    <message>
        <source>The server %1 refused the user name or the password.</source>
        <translation>Der Server %1 lehnte Benutzername oder Passwort ab.</translation>
    </message>
    <message>
        <source>The server %1 does not give the file out.</source>
        <translation>Der Server %1 gibt die Datei nicht aus.</translation>
    </message>
    <message>
        <source>The transfer from %1 failed: %2.</source>
        <translation>Die Übertragung von %1 scheiterte: %2.</translation>
    </message>
    <message>
        <source>the server</source>
        <translation>dem Server</translation>
    </message>
    <message>
        <source>%1 port %2</source>
        <translation>%1 Port %2</translation>
    </message>
    <message>
        <source>The address is empty.</source>
        <translation>Die Adresse ist leer.</translation>
    </message>
    <message>
        <source>The address %1 is not valid.</source>
        <translation>Die Adresse %1 ist nicht gültig.</translation>
    </message>
    <message>
        <source>Addresses of the kind %1 are not fetched, only http, https, ftp and ftps.</source>
        <translation>Adressen der Art %1 werden nicht geholt, nur http, https, ftp und ftps.</translation>
    </message>
    <message>
        <source>The method %1 is not valid.</source>
        <translation>Die Methode %1 ist nicht gültig.</translation>
    </message>
    <message>
        <source>The user name or the password holds a line end, and a file server takes none.</source>
        <translation>Benutzername oder Passwort enthält ein Zeilenende, und ein Datei-Server nimmt keines an.</translation>
    </message>
    <message>
        <source>There is not enough memory for the page.</source>
        <translation>Für die Seite reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>There is not enough memory for this.</source>
        <translation>Dafür reicht der Speicher nicht.</translation>
    </message>
    <message>
        <source>Overflow: %1 is %2, which does not fit 32 bits.</source>
        <translation>Überlauf: %1 ist %2, was nicht in 32 Bit passt.</translation>
    </message>
    <message>
        <source>Overflow: %1 is %2, which is outside the range of -32768 to 32767.</source>
        <translation>Überlauf: %1 ist %2, was außerhalb von -32768 bis 32767 liegt.</translation>
    </message>
    <message>
        <source>Overflow: no site can be added, since the site id %1 is in use and ids end at %2. Delete the site with the highest id, then add the new one.</source>
        <translation>Überlauf: Es kann keine Seite hinzugefügt werden, da die Seiten-ID %1 vergeben ist und die IDs bei %2 enden. Löschen Sie die Seite mit der höchsten ID und fügen Sie dann die neue hinzu.</translation>
    </message>
    <message>
        <source>the site id %1</source>
        <translation>die Seiten-ID %1</translation>
    </message>
    <message>
        <source>the new site&apos;s id</source>
        <translation>die ID der neuen Seite</translation>
    </message>
    <message>
        <source>the setting timeout</source>
        <translation>die Einstellung timeout</translation>
    </message>
    <message>
        <source>the check interval of site %1 in seconds</source>
        <translation>der Prüfabstand von Seite %1 in Sekunden</translation>
    </message>
    <message>
        <source>the id of a POST variable of site %1</source>
        <translation>die ID einer POST-Variablen von Seite %1</translation>
    </message>
    <message>
        <source>the width of a report bar (5 more than the count)</source>
        <translation>die Breite eines Balkens im Bericht (5 mehr als die Anzahl)</translation>
    </message>
    <message>
        <source>report minutes</source>
        <translation>die Minuten bis zum Bericht</translation>
    </message>
    <message>
        <source>A file&apos;s name cannot hold a NUL character.</source>
        <translation>Ein Dateiname kann kein NUL-Zeichen enthalten.</translation>
    </message>
    <message>
        <source>This is a folder, where a file was expected.</source>
        <translation>Dies ist ein Ordner, wo eine Datei erwartet wurde.</translation>
    </message>
    <message>
        <source>Another program is using the file. Close that program and try again.</source>
        <translation>Ein anderes Programm benutzt die Datei. Schließen Sie es und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Windows reports the error %1.</source>
        <translation>Windows meldet den Fehler %1.</translation>
    </message>
    <message>
        <source>A run is on in this folder already: %1 checks the sites of %2, and a second run would check each of them twice. %3</source>
        <translation>In diesem Ordner ist schon ein Lauf im Gange: %1 prüft die Seiten von %2, und ein zweiter Lauf würde jede zweimal prüfen. %3</translation>
    </message>
    <message>
        <source>Stop that run first; when no such process exists on that machine any more, remove %1.</source>
        <translation>Beenden Sie erst diesen Lauf; gibt es den Prozess auf jenem Rechner nicht mehr, so löschen Sie %1.</translation>
    </message>
    <message>
        <source>%1, so no run can be started in it.%2</source>
        <translation>%1, daher kann darin kein Lauf beginnen.%2</translation>
    </message>
    <message>
        <source>The file system of this folder has no locks (%1)</source>
        <translation>Das Dateisystem dieses Ordners kennt keine Sperren (%1)</translation>
    </message>
    <message>
        <source>Move the folder to another disk.</source>
        <translation>Verlegen Sie den Ordner auf eine andere Platte.</translation>
    </message>
    <message>
        <source>The folder cannot be written</source>
        <translation>Der Ordner lässt sich nicht beschreiben</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>ein anderes Programm</translation>
    </message>
    <message>
        <source>a program (process %1 on %2)</source>
        <translation>ein Programm (Prozess %1 auf %2)</translation>
    </message>
    <message>
        <source>%1 (process %2 on %3)</source>
        <translation>%1 (Prozess %2 auf %3)</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (Prozess %2)</translation>
    </message>
    <message>
        <source>No pipe for the signals could be made</source>
        <translation>Für die Signale ließ sich keine Pipe anlegen</translation>
    </message>
    <message>
        <source>%1. The installation of Tarnwick is not whole: install it again.</source>
        <translation>%1. Die Installation von Tarnwick ist unvollständig: Installieren Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The fresh file cannot be given this name.</source>
        <translation>Die frische Datei lässt sich nicht so benennen.</translation>
    </message>
    <message>
        <source>The reports folder is there but holds no file. Put green.jpg and red.jpg into it, or remove it.</source>
        <translation>Der Ordner reports ist da, enthält aber keine Datei. Legen Sie green.jpg und red.jpg hinein oder löschen Sie ihn.</translation>
    </message>
    <message>
        <source>A text in the statement has no end: a single quote is missing.</source>
        <translation>Ein Text in der Anweisung hat kein Ende: Ein einfaches Anführungszeichen fehlt.</translation>
    </message>
    <message>
        <source>A name in the statement has no end: a quote or bracket is missing.</source>
        <translation>Ein Name in der Anweisung hat kein Ende: Ein Anführungszeichen oder eine Klammer fehlt.</translation>
    </message>
    <message>
        <source>The statement holds a character outside its quoted texts that has no meaning there (character code %1).</source>
        <translation>Die Anweisung enthält außerhalb ihrer Texte ein Zeichen, das dort keine Bedeutung hat (Zeichencode %1).</translation>
    </message>
    <message>
        <source>The connection string names no database: &quot;Data Source=&quot; is missing.</source>
        <translation>Die Verbindungszeichenfolge nennt keine Datenbank: „Data Source=“ fehlt.</translation>
    </message>
    <message>
        <source>The connection to the database is open already.</source>
        <translation>Die Verbindung zur Datenbank ist schon offen.</translation>
    </message>
    <message>
        <source>The connection to the database is not open.</source>
        <translation>Die Verbindung zur Datenbank ist nicht offen.</translation>
    </message>
    <message>
        <source>the form of the tables</source>
        <translation>die Form der Tabellen</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>the end of the file is missing</source>
        <translation>das Ende der Datei fehlt</translation>
    </message>
    <message>
        <source>The statement is empty.</source>
        <translation>Die Anweisung ist leer.</translation>
    </message>
    <message>
        <source>Only one statement can be run at a time.</source>
        <translation>Es kann nur eine Anweisung auf einmal ausgeführt werden.</translation>
    </message>
    <message>
        <source>Nothing was stored.</source>
        <translation>Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>%1. Nothing was stored.</source>
        <translation>%1. Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>%1; %2 was not stored.</source>
        <translation>%1; %2 wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>A record with this key is there already; nothing was stored. (%1)</source>
        <translation>Einen Datensatz mit diesem Schlüssel gibt es schon; es wurde nichts gespeichert. (%1)</translation>
    </message>
    <message>
        <source>The database does not allow this value; nothing was stored. (%1)</source>
        <translation>Die Datenbank lässt diesen Wert nicht zu; es wurde nichts gespeichert. (%1)</translation>
    </message>
    <message>
        <source>The database %1 is in use by another program, which has locked it. Close that program, or wait until it is done, and try again.</source>
        <translation>Die Datenbank %1 wird von einem anderen Programm benutzt, das sie gesperrt hat. Schließen Sie es oder warten Sie, bis es fertig ist, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The database %1 could not be locked. Try again; if it lies on a network disk, move it to one of this machine.</source>
        <translation>Die Datenbank %1 ließ sich nicht sperren. Versuchen Sie es noch einmal; liegt sie auf einem Netzlaufwerk, so verlegen Sie sie auf eines dieses Rechners.</translation>
    </message>
    <message>
        <source>A table of the database is still being read; the change cannot be made now. Try again.</source>
        <translation>Eine Tabelle der Datenbank wird noch gelesen; die Änderung ist jetzt nicht möglich. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The database %1 cannot be changed: the file %2, which belongs to it, is read-only. Allow writing to it.</source>
        <translation>Die Datenbank %1 lässt sich nicht ändern: Die Datei %2, die zu ihr gehört, ist schreibgeschützt. Erlauben Sie das Schreiben.</translation>
    </message>
    <message>
        <source>The database %1 cannot be changed: the file or its folder is read-only. Allow writing to both.</source>
        <translation>Die Datenbank %1 lässt sich nicht ändern: Die Datei oder ihr Ordner ist schreibgeschützt. Erlauben Sie das Schreiben in beides.</translation>
    </message>
    <message>
        <source>The database %1 cannot be opened. Allow reading and writing the file and its folder.</source>
        <translation>Die Datenbank %1 lässt sich nicht öffnen. Erlauben Sie das Lesen und Schreiben der Datei und ihres Ordners.</translation>
    </message>
    <message>
        <source>The disk is full: the database %1 could not store this. Free some space and try again.</source>
        <translation>Die Platte ist voll: Die Datenbank %1 konnte dies nicht speichern. Schaffen Sie Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The disk is full: even reading the database %1 needs room for a small file beside it. Free some space and try again.</source>
        <translation>Die Platte ist voll: Schon das Lesen der Datenbank %1 braucht Platz für eine kleine Datei daneben. Schaffen Sie Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Reading or writing the database %1 failed. Check the disk it lies on, and its free space.</source>
        <translation>Das Lesen oder Schreiben der Datenbank %1 ist gescheitert. Prüfen Sie ihre Platte und deren freien Platz.</translation>
    </message>
    <message>
        <source>The text is too large for the database; nothing was stored.</source>
        <translation>Der Text ist zu groß für die Datenbank; es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The record&apos;s number must be a whole number; nothing was stored.</source>
        <translation>Die Nummer des Datensatzes muss eine ganze Zahl sein; es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The database refused the statement: %1</source>
        <translation>Die Datenbank lehnte die Anweisung ab: %1</translation>
    </message>
    <message>
        <source>The file %1 is damaged or is no database. Put back a good copy, for instance backup.mdb. (%2)</source>
        <translation>Die Datei %1 ist beschädigt oder keine Datenbank. Legen Sie eine gute Kopie zurück, zum Beispiel backup.mdb. (%2)</translation>
    </message>
    <message>
        <source>The database %1 is missing. Put the file back, for instance by copying backup.mdb to its name.</source>
        <translation>Die Datenbank %1 fehlt. Legen Sie die Datei zurück, indem Sie zum Beispiel backup.mdb auf ihren Namen kopieren.</translation>
    </message>
    <message>
        <source>The database %1 is a folder. Put the database file in its place.</source>
        <translation>Die Datenbank %1 ist ein Ordner. Legen Sie die Datenbankdatei an seine Stelle.</translation>
    </message>
    <message>
        <source>The database %1 is no file: a device, a pipe or a link that leads in a circle has its name. Put the database file in its place.</source>
        <translation>Die Datenbank %1 ist keine Datei: Ein Gerät, eine Pipe oder ein Verweis, der im Kreis führt, hat ihren Namen. Legen Sie die Datenbankdatei an seine Stelle.</translation>
    </message>
    <message>
        <source>The database %1 was exchanged for another file while it was in use.</source>
        <translation>Die Datenbank %1 wurde während der Benutzung gegen eine andere Datei getauscht.</translation>
    </message>
    <message>
        <source>The files %1-wal and -shm, which belong to the database, were removed or exchanged while it was in use.</source>
        <translation>Die Dateien %1-wal und -shm, die zur Datenbank gehören, wurden während der Benutzung gelöscht oder getauscht.</translation>
    </message>
    <message>
        <source>What was stored last may be lost. From now on the files that are there are used: look whether they are the right ones, and try again. Close every Tarnwick before you touch them.</source>
        <translation>Was zuletzt gespeichert wurde, kann verloren sein. Von jetzt an werden die Dateien benutzt, die da sind: Sehen Sie nach, ob es die richtigen sind, und versuchen Sie es noch einmal. Schließen Sie jedes Tarnwick, bevor Sie sie anfassen.</translation>
    </message>
    <message>
        <source>datediff knows the units n and s</source>
        <translation>datediff kennt die Einheiten n und s</translation>
    </message>
    <message>
        <source>The file %1 is there already and would be overwritten. Remove it.</source>
        <translation>Die Datei %1 ist schon da und würde überschrieben. Löschen Sie sie.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written. Allow writing to its folder.</source>
        <translation>Die Datei %1 lässt sich nicht schreiben. Erlauben Sie das Schreiben in ihren Ordner.</translation>
    </message>
    <message>
        <source>The file %1 belongs to another database than %2. Remove it. (%3)</source>
        <translation>Die Datei %1 gehört zu einer anderen Datenbank als %2. Löschen Sie sie. (%3)</translation>
    </message>
    <message>
        <source>There is no current record: the statement returned none, or all have been read.</source>
        <translation>Es gibt keinen aktuellen Datensatz: Die Anweisung ergab keinen, oder alle sind gelesen.</translation>
    </message>
    <message>
        <source>The records have been closed.</source>
        <translation>Die Datensätze wurden geschlossen.</translation>
    </message>
    <message>
        <source>The statement returns no field &quot;%1&quot;.</source>
        <translation>Die Anweisung ergibt kein Feld „%1“.</translation>
    </message>
    <message>
        <source>The statement returns no field number %1.</source>
        <translation>Die Anweisung ergibt kein Feld Nummer %1.</translation>
    </message>
    <message>
        <source>The database %1 was written by a newer Tarnwick: its tables have form %2, and this program knows forms up to %3. Use the newer program, or put back a copy from before, for instance backup.mdb.</source>
        <translation>Die Datenbank %1 wurde von einem neueren Tarnwick geschrieben: Ihre Tabellen haben die Form %2, und dieses Programm kennt Formen bis %3. Benutzen Sie das neuere Programm oder legen Sie eine Kopie von vorher zurück, zum Beispiel backup.mdb.</translation>
    </message>
    <message>
        <source>The database %1 has no settings row, so nothing could be stored. Put back a good copy, for instance backup.mdb.</source>
        <translation>Die Datenbank %1 hat keine Zeile mit Einstellungen, daher konnte nichts gespeichert werden. Legen Sie eine gute Kopie zurück, zum Beispiel backup.mdb.</translation>
    </message>
    <message>
        <source>The database %1 has no settings row. Put back a good copy, for instance backup.mdb.</source>
        <translation>Die Datenbank %1 hat keine Zeile mit Einstellungen. Legen Sie eine gute Kopie zurück, zum Beispiel backup.mdb.</translation>
    </message>
    <message>
        <source>The option %1 does not take &quot;%2&quot;. It takes %3.</source>
        <translation>Die Option %1 nimmt „%2“ nicht an. Sie nimmt %3.</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;. The options are: %2.</source>
        <translation>Es gibt keine Option „%1“. Die Optionen sind: %2.</translation>
    </message>
    <message>
        <source>The option %1 holds for all sites, and none has a value of its own.</source>
        <translation>Die Option %1 gilt für alle Seiten, und keine hat einen eigenen Wert.</translation>
    </message>
    <message>
        <source>A run is on in this folder: %1 checks the sites of %2, and would go on with the list that is to be replaced. %3</source>
        <translation>In diesem Ordner ist ein Lauf im Gange: %1 prüft die Seiten von %2 und ginge mit der Liste weiter, die ersetzt werden soll. %3</translation>
    </message>
    <message>
        <source>%1, so the list in it cannot be replaced.%2</source>
        <translation>%1, daher lässt sich die Liste darin nicht ersetzen.%2</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Es gibt keine Datei %1.</translation>
    </message>
    <message>
        <source>%1 is no file, so it cannot be put in the place of the list.</source>
        <translation>%1 ist keine Datei und kann nicht an die Stelle der Liste treten.</translation>
    </message>
    <message>
        <source>The file %1 is the list itself. Name the copy to go back to, for instance backup.mdb.</source>
        <translation>Die Datei %1 ist die Liste selbst. Nennen Sie die Kopie, zu der Sie zurückwollen, zum Beispiel backup.mdb.</translation>
    </message>
    <message>
        <source>The file %1 is a database, but no list of Tarnwick.</source>
        <translation>Die Datei %1 ist eine Datenbank, aber keine Liste von Tarnwick.</translation>
    </message>
    <message>
        <source>The file %1 is no sound copy of a list.</source>
        <translation>Die Datei %1 ist keine heile Kopie einer Liste.</translation>
    </message>
    <message>
        <source>The file %1 is no sound copy of a list. Nothing was changed. (%2)</source>
        <translation>Die Datei %1 ist keine heile Kopie einer Liste. Es wurde nichts geändert. (%2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Site %1: %2</source>
        <translation>Seite %1: %2</translation>
    </message>
    <message>
        <source>site %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>1 site</source>
        <translation>1 Seite</translation>
    </message>
    <message>
        <source>%1 sites</source>
        <translation>%1 Seiten</translation>
    </message>
    <message>
        <source>all sites</source>
        <translation>alle Seiten</translation>
    </message>
    <message>
        <source>The option %1 does not take &quot;%2&quot;. It takes &quot;%3&quot; or &quot;%4&quot;.</source>
        <translation>Die Option %1 nimmt „%2“ nicht an. Sie nimmt „%3“ oder „%4“.</translation>
    </message>
    <message>
        <source>The option %1 does not take &quot;%2&quot;. It takes &quot;%3&quot; or &quot;%4&quot; or &quot;%5&quot;.</source>
        <translation>Die Option %1 nimmt „%2“ nicht an. Sie nimmt „%3“, „%4“ oder „%5“.</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 (%3)</source>
        <translation>eine ganze Zahl von %1 bis %2 (%3)</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 or &quot;%3&quot;</source>
        <translation>eine ganze Zahl von %1 bis %2 oder „%3“</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 (%3) or &quot;%4&quot;</source>
        <translation>eine ganze Zahl von %1 bis %2 (%3) oder „%4“</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>einen Text</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>The file has %1 fault</source>
        <translation>Die Datei hat %1 Fehler</translation>
    </message>
    <message>
        <source>The file has %1 faults</source>
        <translation>Die Datei hat %1 Fehler</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>line %1: %2.</source>
        <translation>Zeile %1: %2.</translation>
    </message>
    <message>
        <source>line %1, %2: %3</source>
        <translation>Zeile %1, %2: %3</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>weggelassen: %1</translation>
    </message>
    <message>
        <source>not taken over: %1</source>
        <translation>nicht übernommen: %1</translation>
    </message>
    <message>
        <source>line %1: left out: %2</source>
        <translation>Zeile %1: weggelassen: %2</translation>
    </message>
    <message>
        <source>line %1: not taken over: %2</source>
        <translation>Zeile %1: nicht übernommen: %2</translation>
    </message>
    <message>
        <source>line %1, %2: left out: %3</source>
        <translation>Zeile %1, %2: weggelassen: %3</translation>
    </message>
    <message>
        <source>line %1, %2: not taken over: %3</source>
        <translation>Zeile %1, %2: nicht übernommen: %3</translation>
    </message>
    <message>
        <source>%1: left out: %2</source>
        <translation>%1: weggelassen: %2</translation>
    </message>
    <message>
        <source>%1: not taken over: %2</source>
        <translation>%1: nicht übernommen: %2</translation>
    </message>
    <message>
        <source>a control character stands here, so this is no list of addresses: give a text file</source>
        <translation>hier steht ein Steuerzeichen, daher ist dies keine Liste von Adressen: Geben Sie eine Textdatei an</translation>
    </message>
    <message>
        <source>it is a command, and only pages are watched</source>
        <translation>es ist ein Befehl, und nur Seiten werden beobachtet</translation>
    </message>
    <message>
        <source>the text behind it</source>
        <translation>der Text dahinter</translation>
    </message>
    <message>
        <source>the text behind it, %1</source>
        <translation>der Text dahinter, %1</translation>
    </message>
    <message>
        <source>the address stands in the file before</source>
        <translation>die Adresse steht in der Datei schon vorher</translation>
    </message>
    <message>
        <source>the address stands in the file before, on line %1</source>
        <translation>die Adresse steht in der Datei schon vorher, in Zeile %1</translation>
    </message>
    <message>
        <source>the dates and icons of the bookmarks</source>
        <translation>Datum und Symbol der Lesezeichen</translation>
    </message>
    <message>
        <source>post data</source>
        <translation>Post-Daten</translation>
    </message>
    <message>
        <source>the file breaks off here: a folder of it has no end. Export the bookmarks anew</source>
        <translation>die Datei bricht hier ab: Einer ihrer Ordner hat kein Ende. Exportieren Sie die Lesezeichen neu</translation>
    </message>
    <message>
        <source>the file holds NUL bytes, so these are no bookmarks: export them as HTML</source>
        <translation>die Datei enthält NUL-Bytes, daher sind dies keine Lesezeichen: Exportieren Sie sie als HTML</translation>
    </message>
    <message>
        <source>this is no JSON: %1. The file may be cut short: copy it anew</source>
        <translation>dies ist kein JSON: %1. Die Datei kann abgeschnitten sein: Kopieren Sie sie neu</translation>
    </message>
    <message>
        <source>this is no JSON: %1</source>
        <translation>dies ist kein JSON: %1</translation>
    </message>
    <message>
        <source>the general setting %1</source>
        <translation>die allgemeine Einstellung %1</translation>
    </message>
    <message>
        <source>this is no list of changedetection.io: a watch in it is no object</source>
        <translation>dies ist keine Liste von changedetection.io: Ein Eintrag darin ist kein Objekt</translation>
    </message>
    <message>
        <source>counters, times and the pages of the past</source>
        <translation>Zähler, Zeiten und die Seiten von früher</translation>
    </message>
    <message>
        <source>this is no list of changedetection.io: it has no member &quot;watching&quot; with an object</source>
        <translation>dies ist keine Liste von changedetection.io: Sie hat kein Element „watching“ mit einem Objekt</translation>
    </message>
    <message>
        <source>the zip archive holds no list: it is no backup of changedetection.io</source>
        <translation>das ZIP-Archiv enthält keine Liste: Es ist keine Sicherung von changedetection.io</translation>
    </message>
    <message>
        <source>a list of addresses</source>
        <translation>eine Liste von Adressen</translation>
    </message>
    <message>
        <source>the bookmarks of a browser</source>
        <translation>die Lesezeichen eines Browsers</translation>
    </message>
    <message>
        <source>a list of urlwatch</source>
        <translation>eine Liste von urlwatch</translation>
    </message>
    <message>
        <source>the list or backup of changedetection.io</source>
        <translation>die Liste oder Sicherung von changedetection.io</translation>
    </message>
    <message>
        <source>the file is larger than 64 MiB, and no list of sites is: see whether it is the right one</source>
        <translation>die Datei ist größer als 64 MiB, und das ist keine Liste von Seiten: Sehen Sie nach, ob es die richtige ist</translation>
    </message>
    <message>
        <source>the file is UTF-16: save it as UTF-8</source>
        <translation>die Datei ist UTF-16: Speichern Sie sie als UTF-8</translation>
    </message>
    <message>
        <source>the file holds no address: see whether it is %1</source>
        <translation>die Datei enthält keine Adresse: Sehen Sie nach, ob es %1 ist</translation>
    </message>
    <message>
        <source>there is not enough memory to read the file: see whether it is the right one</source>
        <translation>zum Lesen der Datei reicht der Speicher nicht: Sehen Sie nach, ob es die richtige ist</translation>
    </message>
    <message>
        <source>the file cannot be read as %1</source>
        <translation>die Datei lässt sich nicht lesen als %1</translation>
    </message>
    <message>
        <source>the file cannot be read as %1: see whether it is the right one</source>
        <translation>die Datei lässt sich nicht lesen als %1: Sehen Sie nach, ob es die richtige ist</translation>
    </message>
    <message>
        <source>the file is damaged so badly that it cannot be read: copy it anew, or export it again</source>
        <translation>die Datei ist so beschädigt, dass sie sich nicht lesen lässt: Kopieren oder exportieren Sie sie neu</translation>
    </message>
    <message>
        <source>The list was not handed over whole.</source>
        <translation>Die Liste wurde nicht ganz übergeben.</translation>
    </message>
    <message>
        <source>method %1 (so it is switched off)</source>
        <translation>Methode %1 (daher ist sie ausgeschaltet)</translation>
    </message>
    <message>
        <source>interval of %1 seconds (taken as %2 min)</source>
        <translation>Abstand von %1 Sekunden (übernommen als %2 min)</translation>
    </message>
    <message>
        <source>request body %1, which is no form (so it is switched off)</source>
        <translation>Inhalt der Abfrage %1, der kein Formular ist (daher ist sie ausgeschaltet)</translation>
    </message>
    <message>
        <source>header %1</source>
        <translation>Kopfzeile %1</translation>
    </message>
    <message>
        <source>title %1</source>
        <translation>Titel %1</translation>
    </message>
    <message>
        <source>folder %1</source>
        <translation>Ordner %1</translation>
    </message>
    <message>
        <source>tags %1</source>
        <translation>Schlagwörter %1</translation>
    </message>
    <message>
        <source>there is no address</source>
        <translation>es gibt keine Adresse</translation>
    </message>
    <message>
        <source>it is the address of no page</source>
        <translation>es ist nicht die Adresse einer Seite</translation>
    </message>
    <message>
        <source>this is no whole OPML: %1. Export it anew, or correct it here</source>
        <translation>dies ist kein ganzes OPML: %1. Exportieren Sie es neu oder berichtigen Sie es hier</translation>
    </message>
    <message>
        <source>this is no OPML: its outermost element is %1 instead of &quot;opml&quot;</source>
        <translation>dies ist kein OPML: Sein äußerstes Element ist %1 statt „opml“</translation>
    </message>
    <message>
        <source>this Tarnwick was built without %1, so it does not read %2: install %3 and build it again, or give a plain list of addresses</source>
        <translation>dieses Tarnwick wurde ohne %1 gebaut und liest daher %2 nicht: Installieren Sie %3 und bauen Sie es noch einmal, oder geben Sie eine einfache Liste von Adressen an</translation>
    </message>
    <message>
        <source>lists of urlwatch</source>
        <translation>Listen von urlwatch</translation>
    </message>
    <message>
        <source>zip archives</source>
        <translation>ZIP-Archive</translation>
    </message>
    <message>
        <source>it has no url</source>
        <translation>es hat keine url</translation>
    </message>
    <message>
        <source>time-out of %1 seconds (there is one for all sites: the setting timeout)</source>
        <translation>Zeitlimit von %1 Sekunden (es gibt eines für alle Seiten: die Einstellung timeout)</translation>
    </message>
    <message>
        <source>rendering by a browser (navigate)</source>
        <translation>Darstellung durch einen Browser (navigate)</translation>
    </message>
    <message>
        <source>the file is larger than 16 MiB, and no list of urlwatch is: see whether it is the right one</source>
        <translation>die Datei ist größer als 16 MiB, und das ist keine Liste von urlwatch: Sehen Sie nach, ob es die richtige ist</translation>
    </message>
    <message>
        <source>this is no job of urlwatch: give one like url: https://...</source>
        <translation>dies ist kein Auftrag von urlwatch: Geben Sie einen an wie url: https://...</translation>
    </message>
    <message>
        <source>this is no YAML: %1. Correct it here</source>
        <translation>dies ist kein YAML: %1. Berichtigen Sie es hier</translation>
    </message>
    <message>
        <source>the zip archive is damaged or cut short (%1): copy or download it anew</source>
        <translation>das ZIP-Archiv ist beschädigt oder abgeschnitten (%1): Kopieren Sie es neu oder laden Sie es noch einmal herunter</translation>
    </message>
    <message>
        <source>a file in it does not come to its end</source>
        <translation>eine Datei darin kommt nicht zu ihrem Ende</translation>
    </message>
    <message>
        <source>the lists in the zip archive are larger than 64 MiB, and none is: see whether it is the right one</source>
        <translation>die Listen im ZIP-Archiv sind größer als 64 MiB, und das ist keine: Sehen Sie nach, ob es das richtige ist</translation>
    </message>
    <message>
        <source>A text is expected: a string, or {&quot;base64&quot;: &quot;...&quot;} for bytes that are no UTF-8.</source>
        <translation>Erwartet wird ein Text: eine Zeichenkette, oder {&quot;base64&quot;: &quot;...&quot;} für Bytes, die kein UTF-8 sind.</translation>
    </message>
    <message>
        <source>idSite %1 stands on line %2 already: give each site an id of its own, or none to add it as a new one</source>
        <translation>idSite %1 steht schon in Zeile %2: Geben Sie jeder Seite eine eigene ID, oder keine, um sie als neue hinzuzufügen</translation>
    </message>
    <message>
        <source>the option %1 holds for all sites, and none has a value of its own: set it for all</source>
        <translation>die Option %1 gilt für alle Seiten, und keine hat einen eigenen Wert: Setzen Sie sie für alle</translation>
    </message>
    <message>
        <source>the url is empty: give the site&apos;s address</source>
        <translation>die url ist leer: Geben Sie die Adresse der Seite an</translation>
    </message>
    <message>
        <source>no id is left for a new site, since ids end at %1: give it one that is free, or delete the site of the highest id</source>
        <translation>für eine neue Seite ist keine ID übrig, da die IDs bei %1 enden: Geben Sie ihr eine freie oder löschen Sie die Seite mit der höchsten ID</translation>
    </message>
    <message>
        <source>site %1: the email %2 is imported, but is none that add takes: %3</source>
        <translation>Seite %1: Die E-Mail-Adresse %2 wird übernommen, ist aber keine, die „add“ annimmt: %3</translation>
    </message>
    <message>
        <source>%1 %2 holds a line end or a NUL byte: give it without</source>
        <translation>%1 %2 enthält ein Zeilenende oder ein NUL-Byte: Geben Sie es ohne an</translation>
    </message>
    <message>
        <source>url %1 is no address: give one like https://example.org/page</source>
        <translation>url %1 ist keine Adresse: Geben Sie eine an wie https://example.org/page</translation>
    </message>
    <message>
        <source>url %1 cannot be fetched: give an address of http, https, ftp or ftps</source>
        <translation>url %1 kann nicht geholt werden: Geben Sie eine Adresse mit http, https, ftp oder ftps an</translation>
    </message>
    <message>
        <source>email %1 is no mail address: give one for the alerts, or set alertEmail to False</source>
        <translation>email %1 ist keine E-Mail-Adresse: Geben Sie eine für die Alarme an oder setzen Sie alertEmail auf False</translation>
    </message>
    <message>
        <source>letters a to z, digits, &quot;.&quot;, &quot;-&quot;, &quot;_&quot; before the &quot;@&quot; only, and at most 3 characters behind the last &quot;.&quot;</source>
        <translation>Buchstaben a bis z, Ziffern, „.“, „-“, „_“ nur vor dem „@“, und höchstens 3 Zeichen hinter dem letzten „.“</translation>
    </message>
    <message>
        <source>%1 %2 is no whole number: %3</source>
        <translation>%1 %2 ist keine ganze Zahl: %3</translation>
    </message>
    <message>
        <source>%1 %2 is outside 1 to %3: %4</source>
        <translation>%1 %2 liegt nicht in 1 bis %3: %4</translation>
    </message>
    <message>
        <source>give the site&apos;s id, or leave it out to add the site as a new one</source>
        <translation>Geben Sie die ID der Seite an, oder lassen Sie sie weg, um die Seite als neue hinzuzufügen</translation>
    </message>
    <message>
        <source>give the whole minutes between two checks</source>
        <translation>Geben Sie die ganzen Minuten zwischen zwei Prüfungen an</translation>
    </message>
    <message>
        <source>%1 %2 is neither yes nor no: give True or False</source>
        <translation>%1 %2 ist weder ja noch nein: Geben Sie True oder False an</translation>
    </message>
    <message>
        <source>%1 %2 is none that is sent: give get or post</source>
        <translation>%1 %2 ist keine, die gesendet wird: Geben Sie get oder post an</translation>
    </message>
    <message>
        <source>there is no option %1: they are listed by tarnwickctl option --help</source>
        <translation>es gibt keine Option %1: „tarnwickctl option --help“ führt sie auf</translation>
    </message>
    <message>
        <source>the option %1 is given twice: leave one of them out</source>
        <translation>die Option %1 ist zweimal angegeben: Lassen Sie eine weg</translation>
    </message>
    <message>
        <source>the option %1 does not take %2: give %3</source>
        <translation>die Option %1 nimmt %2 nicht an: Geben Sie %3 an</translation>
    </message>
    <message>
        <source>the baseline is larger than the largest page that is fetched, 64 MiB: leave it out</source>
        <translation>die Basis ist größer als die größte Seite, die geholt wird, 64 MiB: Lassen Sie sie weg</translation>
    </message>
    <message>
        <source>the file holds more than 32767 sites, and a list has no ids for more: leave some out</source>
        <translation>die Datei enthält mehr als 32767 Seiten, und für mehr hat eine Liste keine IDs: Lassen Sie einige weg</translation>
    </message>
    <message>
        <source>the column url is missing: the first line names the columns, of which url must be one</source>
        <translation>die Spalte url fehlt: Die erste Zeile nennt die Spalten, und url muss dabei sein</translation>
    </message>
    <message>
        <source>the fields are separated by %1: save the file with commas between the fields</source>
        <translation>die Felder sind durch %1 getrennt: Speichern Sie die Datei mit Kommas zwischen den Feldern</translation>
    </message>
    <message>
        <source>semicolons</source>
        <translation>Semikolons</translation>
    </message>
    <message>
        <source>tabs</source>
        <translation>Tabulatoren</translation>
    </message>
    <message>
        <source>there is no column %1: the first line names the columns, which are %2</source>
        <translation>es gibt keine Spalte %1: Die erste Zeile nennt die Spalten, diese sind %2</translation>
    </message>
    <message>
        <source>the column %1 is named twice: leave one of them out</source>
        <translation>die Spalte %1 ist zweimal genannt: Lassen Sie eine weg</translation>
    </message>
    <message>
        <source>idSite 0 stands for all sites, which have options and nothing else: leave the other fields empty, or give a site&apos;s id</source>
        <translation>idSite 0 steht für alle Seiten, die nur Optionen haben: Lassen Sie die anderen Felder leer oder geben Sie die ID einer Seite an</translation>
    </message>
    <message>
        <source>the baseline is no base64 text: export it anew, or leave its column out</source>
        <translation>die Basis ist kein base64-Text: Exportieren Sie sie neu oder lassen Sie ihre Spalte weg</translation>
    </message>
    <message>
        <source>the file is empty: its first line names the columns, which are %1</source>
        <translation>die Datei ist leer: Ihre erste Zeile nennt die Spalten, diese sind %1</translation>
    </message>
    <message>
        <source>the number of fields is %1 and that of columns %2: give each column its field, and put one that holds a comma in quotes</source>
        <translation>die Zahl der Felder ist %1 und die der Spalten %2: Geben Sie jeder Spalte ihr Feld, und setzen Sie eines mit einem Komma in Anführungszeichen</translation>
    </message>
    <message>
        <source>the row has more than %1 fields, and the list has no such columns: leave them out</source>
        <translation>die Zeile hat mehr als %1 Felder, und solche Spalten hat die Liste nicht: Lassen Sie sie weg</translation>
    </message>
    <message>
        <source>the quote that begins a field here is never closed: end the field with a quote, and double the quotes inside it</source>
        <translation>das Anführungszeichen, das hier ein Feld beginnt, wird nie geschlossen: Beenden Sie das Feld mit einem Anführungszeichen und verdoppeln Sie die darin</translation>
    </message>
    <message>
        <source>text stands behind the quote that ends a field (it begins on line %1): double the quotes inside a field</source>
        <translation>hinter dem Anführungszeichen, das ein Feld beendet, steht Text (es beginnt in Zeile %1): Verdoppeln Sie die Anführungszeichen in einem Feld</translation>
    </message>
    <message>
        <source>text stands behind the quote that ends a field: double the quotes inside a field</source>
        <translation>hinter dem Anführungszeichen, das ein Feld beendet, steht Text: Verdoppeln Sie die Anführungszeichen in einem Feld</translation>
    </message>
    <message>
        <source>a quote stands inside a field that does not begin with one: put the field in quotes, and double the quotes inside it</source>
        <translation>in einem Feld, das nicht mit einem Anführungszeichen beginnt, steht eines: Setzen Sie das Feld in Anführungszeichen und verdoppeln Sie die darin</translation>
    </message>
    <message>
        <source>a NUL character stands outside of quotes: save the file as UTF-8, or put the field in quotes</source>
        <translation>ein NUL-Zeichen steht außerhalb von Anführungszeichen: Speichern Sie die Datei als UTF-8 oder setzen Sie das Feld in Anführungszeichen</translation>
    </message>
    <message>
        <source>a carriage return stands alone: end lines with CR LF or LF, or put the field in quotes</source>
        <translation>ein Wagenrücklauf steht allein: Beenden Sie Zeilen mit CR LF oder LF, oder setzen Sie das Feld in Anführungszeichen</translation>
    </message>
    <message>
        <source>the member &quot;tarnwick&quot;: 1 is missing, so this is no list of sites: begin the file with {&quot;tarnwick&quot;: 1, &quot;sites&quot;: [</source>
        <translation>das Element &quot;tarnwick&quot;: 1 fehlt, daher ist dies keine Liste von Seiten: Beginnen Sie die Datei mit {&quot;tarnwick&quot;: 1, &quot;sites&quot;: [</translation>
    </message>
    <message>
        <source>the member &quot;sites&quot; is missing: give an array with an object for each site</source>
        <translation>das Element &quot;sites&quot; fehlt: Geben Sie ein Array mit einem Objekt für jede Seite an</translation>
    </message>
    <message>
        <source>an object of more than %1 members</source>
        <translation>ein Objekt mit mehr als %1 Elementen</translation>
    </message>
    <message>
        <source>an array of more than %1 values</source>
        <translation>ein Array mit mehr als %1 Werten</translation>
    </message>
    <message>
        <source>the member %1 is given twice: leave one of them out</source>
        <translation>das Element %1 ist zweimal angegeben: Lassen Sie eines weg</translation>
    </message>
    <message>
        <source>the file is of version %1 of the list&apos;s format, and version 1 can be read: export it with the same program</source>
        <translation>die Datei hat Version %1 des Listenformats, und gelesen wird Version 1: Exportieren Sie sie mit demselben Programm</translation>
    </message>
    <message>
        <source>the site holds objects in objects that no member has: leave them out</source>
        <translation>die Seite enthält Objekte in Objekten, die kein Element hat: Lassen Sie sie weg</translation>
    </message>
    <message>
        <source>the site holds %1, and none has so many: leave them out</source>
        <translation>die Seite enthält %1, und keine hat so viele: Lassen Sie sie weg</translation>
    </message>
    <message>
        <source>the array &quot;sites&quot; holds something else than objects: give an object for each site</source>
        <translation>das Array &quot;sites&quot; enthält anderes als Objekte: Geben Sie ein Objekt für jede Seite an</translation>
    </message>
    <message>
        <source>this is no list of sites: it has the form {&quot;tarnwick&quot;: 1, &quot;sites&quot;: [{...}, ...]}</source>
        <translation>dies ist keine Liste von Seiten: Sie hat die Form {&quot;tarnwick&quot;: 1, &quot;sites&quot;: [{...}, ...]}</translation>
    </message>
    <message>
        <source>there is no member %1: the members are %2</source>
        <translation>es gibt kein Element %1: Die Elemente sind %2</translation>
    </message>
    <message>
        <source>%1 %2 is no whole number: give one without quotes, a point or an exponent</source>
        <translation>%1 %2 ist keine ganze Zahl: Geben Sie eine ohne Anführungszeichen, Punkt und Exponent an</translation>
    </message>
    <message>
        <source>%1 %2 is neither yes nor no: give true or false, without quotes</source>
        <translation>%1 %2 ist weder ja noch nein: Geben Sie true oder false ohne Anführungszeichen an</translation>
    </message>
    <message>
        <source>%1 %2 is no text: give a string, or {&quot;base64&quot;: &quot;...&quot;} for bytes that are no UTF-8</source>
        <translation>%1 %2 ist kein Text: Geben Sie eine Zeichenkette an, oder {&quot;base64&quot;: &quot;...&quot;} für Bytes, die kein UTF-8 sind</translation>
    </message>
    <message>
        <source>postVars is no array of {&quot;pname&quot;: &quot;...&quot;, &quot;pvalue&quot;: &quot;...&quot;}: give one such object a variable</source>
        <translation>postVars ist kein Array von {&quot;pname&quot;: &quot;...&quot;, &quot;pvalue&quot;: &quot;...&quot;}: Geben Sie ein solches Objekt je Variable an</translation>
    </message>
    <message>
        <source>the option %1 is no text: give a string, or {&quot;base64&quot;: &quot;...&quot;} for bytes that are no UTF-8</source>
        <translation>die Option %1 ist kein Text: Geben Sie eine Zeichenkette an, oder {&quot;base64&quot;: &quot;...&quot;} für Bytes, die kein UTF-8 sind</translation>
    </message>
    <message>
        <source>options is no object: give {&quot;NAME&quot;: &quot;VALUE&quot;, ...}</source>
        <translation>options ist kein Objekt: Geben Sie {&quot;NAME&quot;: &quot;VALUE&quot;, ...} an</translation>
    </message>
    <message>
        <source>the member url is missing: give the site&apos;s address</source>
        <translation>das Element url fehlt: Geben Sie die Adresse der Seite an</translation>
    </message>
    <message>
        <source>%1 is no encoded byte: write a percent sign as %%25</source>
        <translation>%1 ist kein kodiertes Byte: Schreiben Sie ein Prozentzeichen als %%25</translation>
    </message>
    <message>
        <source>%1 has no &quot;=&quot;: write name=value, and between two of them one &quot;&amp;&quot;</source>
        <translation>%1 hat kein „=“: Schreiben Sie name=value und zwischen zwei davon ein „&amp;“</translation>
    </message>
    <message>
        <source>there are more than %1 variables, and no site has so many: leave them out</source>
        <translation>es sind mehr als %1 Variablen, und keine Seite hat so viele: Lassen Sie sie weg</translation>
    </message>
    <message>
        <source>Nobody can be asked here: to do it without a question, add --yes.</source>
        <translation>Hier ist niemand, den man fragen kann: Um es ohne Frage zu tun, fügen Sie --yes hinzu.</translation>
    </message>
    <message>
        <source>%1 [y/N]</source>
        <translation>%1 [j/N]</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no moment. Write it as %2.</source>
        <translation>„%1“ ist kein Zeitpunkt. Schreiben Sie ihn als %2.</translation>
    </message>
    <message>
        <source>YYYY-MM-DD, &quot;YYYY-MM-DD HH:MM:SS&quot;, today, or an age like 90s, 15m, 2h, 7d</source>
        <translation>YYYY-MM-DD, &quot;YYYY-MM-DD HH:MM:SS&quot;, today oder ein Alter wie 90s, 15m, 2h, 7d</translation>
    </message>
    <message>
        <source>the site was changed, switched off or deleted while it was checked, so its page was dropped; check it again</source>
        <translation>die Seite wurde während ihrer Prüfung geändert, ausgeschaltet oder gelöscht, daher wurde das Geholte verworfen; prüfen Sie sie noch einmal</translation>
    </message>
    <message>
        <source>Left out, since never checked: %1. Check once with: tarnwickctl check%2</source>
        <translation>Weggelassen, da nie geprüft: %1. Einmal prüfen mit: tarnwickctl check%2</translation>
    </message>
    <message>
        <source>No site is due.</source>
        <translation>Keine Seite ist fällig.</translation>
    </message>
    <message>
        <source>There is no active site to check. Add one with: tarnwickctl add URL</source>
        <translation>Es gibt keine aktive Seite zu prüfen. Fügen Sie eine hinzu mit: tarnwickctl add URL</translation>
    </message>
    <message>
        <source>Interrupted: %1 of %2 sites were checked.</source>
        <translation>Unterbrochen: %1 von %2 Seiten wurden geprüft.</translation>
    </message>
    <message>
        <source>A verb is missing, for instance: tarnwickctl sites</source>
        <translation>Ein Verb fehlt, zum Beispiel: tarnwickctl sites</translation>
    </message>
    <message>
        <source>There is no verb &quot;%1&quot;.</source>
        <translation>Es gibt kein Verb „%1“.</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>Es gibt keine Option „%1“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no id: ids are whole numbers from 1 to 32767</source>
        <translation>„%1“ ist keine ID: IDs sind ganze Zahlen von 1 bis 32767</translation>
    </message>
    <message>
        <source>See: tarnwickctl%1 --help</source>
        <translation>Siehe: tarnwickctl%1 --help</translation>
    </message>
    <message>
        <source>See: tarnwickctl --help</source>
        <translation>Siehe: tarnwickctl --help</translation>
    </message>
    <message>
        <source>The counters of all sites are 0 now.</source>
        <translation>Die Zähler aller Seiten stehen jetzt auf 0.</translation>
    </message>
    <message>
        <source>The counters of site %1 are 0 now.</source>
        <translation>Die Zähler von Seite %1 stehen jetzt auf 0.</translation>
    </message>
    <message>
        <source>The format of &quot;%1&quot; does not show in its name. Add --format csv or --format json.</source>
        <translation>Der Name „%1“ zeigt kein Format. Fügen Sie --format csv oder --format json hinzu.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>An import will refuse site %1: %2.</source>
        <translation>Ein Import wird Seite %1 ablehnen: %2.</translation>
    </message>
    <message>
        <source>An import will refuse %1; the first %2 are named.</source>
        <translation>Ein Import wird %1 ablehnen; die ersten %2 sind genannt.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is the list itself. Export to a file of another name.</source>
        <translation>Die Datei „%1“ ist die Liste selbst. Exportieren Sie in eine Datei mit anderem Namen.</translation>
    </message>
    <message>
        <source>Exported %1 to %2.</source>
        <translation>%1 exportiert nach %2.</translation>
    </message>
    <message>
        <source>What kind of file &quot;%1&quot; is does not show in its content. Add --format with %2.</source>
        <translation>Welcher Art die Datei „%1“ ist, zeigt ihr Inhalt nicht. Fügen Sie --format hinzu mit %2.</translation>
    </message>
    <message>
        <source>change the options of all sites</source>
        <translation>die Optionen aller Seiten ändern</translation>
    </message>
    <message>
        <source>The options of all sites are changed.</source>
        <translation>Die Optionen aller Seiten sind geändert.</translation>
    </message>
    <message>
        <source>%1 to add, %2 to change, %3 to delete, %4 unchanged.</source>
        <translation>%1 hinzuzufügen, %2 zu ändern, %3 zu löschen, %4 unverändert.</translation>
    </message>
    <message>
        <source>%1 added, %2 changed, %3 deleted, %4 unchanged.</source>
        <translation>%1 hinzugefügt, %2 geändert, %3 gelöscht, %4 unverändert.</translation>
    </message>
    <message>
        <source>1 note tells what was not taken over, %1</source>
        <translation>1 Hinweis sagt, was nicht übernommen wurde, %1</translation>
    </message>
    <message>
        <source>%1 notes tell what was not taken over, %2</source>
        <translation>%1 Hinweise sagen, was nicht übernommen wurde, %2</translation>
    </message>
    <message>
        <source>%1 entry was left out.</source>
        <translation>%1 Eintrag wurde weggelassen.</translation>
    </message>
    <message>
        <source>%1 entries were left out.</source>
        <translation>%1 Einträge wurden weggelassen.</translation>
    </message>
    <message>
        <source>%1, line %2: %3.</source>
        <translation>%1, Zeile %2: %3.</translation>
    </message>
    <message>
        <source>%1 more like these are not shown.</source>
        <translation>%1 weitere dieser Art sind nicht gezeigt.</translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Es wurde nichts importiert.</translation>
    </message>
    <message>
        <source>Nothing was imported; %1 more faults are not shown.</source>
        <translation>Es wurde nichts importiert; %1 weitere Fehler sind nicht gezeigt.</translation>
    </message>
    <message>
        <source>The file has no site. Delete all that are in the list (%1) with their POST variables and baselines?</source>
        <translation>Die Datei hat keine Seite. Alle löschen, die in der Liste stehen (%1), mit ihren POST-Variablen und Basen?</translation>
    </message>
    <message>
        <source>There is no fresh list beside the tool to lay into %1. The installation of Tarnwick is not whole: install it again.</source>
        <translation>Neben dem Werkzeug liegt keine frische Liste, die nach %1 gelegt werden könnte. Die Installation von Tarnwick ist unvollständig: Installieren Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The folder %1 has had a list, which is missing. Put tarnwick.mdb back, for instance with: tarnwickctl restore backup.mdb</source>
        <translation>Der Ordner %1 hatte eine Liste, die fehlt. Legen Sie tarnwick.mdb zurück, zum Beispiel mit: tarnwickctl restore backup.mdb</translation>
    </message>
    <message>
        <source>A fresh list lies in %1.</source>
        <translation>Eine frische Liste liegt in %1.</translation>
    </message>
    <message>
        <source>There is a list in %1 already. It stays as it is.</source>
        <translation>In %1 gibt es schon eine Liste. Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Only &quot;log clear&quot; takes --yes.</source>
        <translation>Nur „log clear“ nimmt --yes.</translation>
    </message>
    <message>
        <source>The log holds no such result.</source>
        <translation>Das Log enthält kein solches Ergebnis.</translation>
    </message>
    <message>
        <source>The log holds no such result, and none is written. To write them: tarnwickctl settings clogs on</source>
        <translation>Das Log enthält kein solches Ergebnis, und es wird keines geschrieben. Um sie zu schreiben: tarnwickctl settings clogs on</translation>
    </message>
    <message>
        <source>&quot;log clear&quot; empties the whole log; it takes no option but --yes.</source>
        <translation>„log clear“ leert das ganze Log; es nimmt keine Option außer --yes.</translation>
    </message>
    <message>
        <source>Delete the whole log?</source>
        <translation>Das ganze Log löschen?</translation>
    </message>
    <message>
        <source>The log is empty now.</source>
        <translation>Das Log ist jetzt leer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither all nor the id of a site. The ids are listed by: tarnwickctl sites</source>
        <translation>„%1“ ist weder all noch die ID einer Seite. Die IDs zeigt: tarnwickctl sites</translation>
    </message>
    <message>
        <source>The option %1 of %2 is removed.</source>
        <translation>Die Option %1 von %2 ist entfernt.</translation>
    </message>
    <message>
        <source>The option %1 of %2 is stored.</source>
        <translation>Die Option %1 von %2 ist gespeichert.</translation>
    </message>
    <message>
        <source>The option %1 is not set: %2.</source>
        <translation>Die Option %1 ist nicht gesetzt: %2.</translation>
    </message>
    <message>
        <source>Site %1 has no baseline yet: the next page that is fetched becomes it.</source>
        <translation>Seite %1 hat noch keine Basis: Die nächste Seite, die geholt wird, wird es.</translation>
    </message>
    <message>
        <source>Interrupted; the baseline is as it was.</source>
        <translation>Unterbrochen; die Basis ist, wie sie war.</translation>
    </message>
    <message>
        <source>The page of site %1 could not be fetched; the baseline is as it was. %2</source>
        <translation>Der Inhalt von Seite %1 ließ sich nicht holen; die Basis ist, wie sie war. %2</translation>
    </message>
    <message>
        <source>The page of site %1 is empty, which cannot be a baseline; the baseline is as it was.</source>
        <translation>Der Inhalt von Seite %1 ist leer, was keine Basis sein kann; die Basis ist, wie sie war.</translation>
    </message>
    <message>
        <source>The page that was fetched now is the baseline.</source>
        <translation>Die eben geholte Seite ist die Basis.</translation>
    </message>
    <message>
        <source>The page that was fetched now is the baseline. (%1)</source>
        <translation>Die eben geholte Seite ist die Basis. (%1)</translation>
    </message>
    <message>
        <source>%1 is empty. To remove the baseline, use: tarnwickctl baseline %2 clear</source>
        <translation>%1 ist leer. Um die Basis zu entfernen: tarnwickctl baseline %2 clear</translation>
    </message>
    <message>
        <source>%1 is larger than the largest page that is fetched, 64 MiB.</source>
        <translation>%1 ist größer als die größte Seite, die geholt wird, 64 MiB.</translation>
    </message>
    <message>
        <source>The file is the baseline.</source>
        <translation>Die Datei ist die Basis.</translation>
    </message>
    <message>
        <source>The file is the baseline. (%1)</source>
        <translation>Die Datei ist die Basis. (%1)</translation>
    </message>
    <message>
        <source>Site %1 has no latest page. Fetch it with: %2</source>
        <translation>Seite %1 hat keinen letzten Inhalt. Holen Sie ihn mit: %2</translation>
    </message>
    <message>
        <source>The latest check of site %1 brought no page but &quot;%2&quot;. Check again with: %3; if that is the page&apos;s own text, use --force.</source>
        <translation>Die letzte Prüfung von Seite %1 brachte keine Seite, sondern „%2“. Prüfen Sie noch einmal mit: %3; ist das der Text der Seite selbst, so nehmen Sie --force.</translation>
    </message>
    <message>
        <source>The latest page is the baseline.</source>
        <translation>Der letzte Inhalt ist die Basis.</translation>
    </message>
    <message>
        <source>The latest page is the baseline. (%1)</source>
        <translation>Der letzte Inhalt ist die Basis. (%1)</translation>
    </message>
    <message>
        <source>Only &quot;accept&quot; takes --force.</source>
        <translation>Nur „accept“ nimmt --force.</translation>
    </message>
    <message>
        <source>Name the file: tarnwickctl baseline %1 set FILE (- for standard input)</source>
        <translation>Nennen Sie die Datei: tarnwickctl baseline %1 set FILE (- für die Standardeingabe)</translation>
    </message>
    <message>
        <source>The baseline is cleared: the next page that is fetched becomes it.</source>
        <translation>Die Basis ist gelöscht: Die nächste Seite, die geholt wird, wird es.</translation>
    </message>
    <message>
        <source>--- baseline of site %1</source>
        <translation>--- Basis von Seite %1</translation>
    </message>
    <message>
        <source>+++ latest page of site %1</source>
        <translation>+++ letzter Inhalt von Seite %1</translation>
    </message>
    <message>
        <source>It is: tarnwickctl post %1</source>
        <translation>Richtig ist: tarnwickctl post %1</translation>
    </message>
    <message>
        <source>Site %1 has no POST variables. Add one with: tarnwickctl post %2 add NAME VALUE</source>
        <translation>Seite %1 hat keine POST-Variablen. Fügen Sie eine hinzu mit: tarnwickctl post %2 add NAME VALUE</translation>
    </message>
    <message>
        <source>Site %1 has no variable %2. Letter case and blanks count; they are listed by: tarnwickctl post %3</source>
        <translation>Seite %1 hat keine Variable %2. Groß- und Kleinschreibung und Leerzeichen zählen; es zeigt sie: tarnwickctl post %3</translation>
    </message>
    <message>
        <source>%1 of the value %2</source>
        <translation>%1 mit dem Wert %2</translation>
    </message>
    <message>
        <source>Site %1 has several variables %2. Add behind the name the value of the one that is meant: %3</source>
        <translation>Seite %1 hat mehrere Variablen %2. Fügen Sie hinter dem Namen den Wert der gemeinten an: %3</translation>
    </message>
    <message>
        <source>Site %1 has the variable %2 now.</source>
        <translation>Seite %1 hat jetzt die Variable %2.</translation>
    </message>
    <message>
        <source>The variable is %1 = %2 now.</source>
        <translation>Die Variable ist jetzt %1 = %2.</translation>
    </message>
    <message>
        <source>The variable %1 is removed.</source>
        <translation>Die Variable %1 ist entfernt.</translation>
    </message>
    <message>
        <source>Only &quot;list&quot; prints JSON.</source>
        <translation>Nur „list“ gibt JSON aus.</translation>
    </message>
    <message>
        <source>Only &quot;add&quot; takes --value-file.</source>
        <translation>Nur „add“ nimmt --value-file.</translation>
    </message>
    <message>
        <source>Run started: %1 active in %2.</source>
        <translation>Lauf begonnen: %1 aktiv in %2.</translation>
    </message>
    <message>
        <source>Run stopped.</source>
        <translation>Lauf beendet.</translation>
    </message>
    <message>
        <source>Checked %1: %2.</source>
        <translation>%1 geprüft: %2.</translation>
    </message>
    <message>
        <source>Checked %1: %2; %3 left out.</source>
        <translation>%1 geprüft: %2; %3 weggelassen.</translation>
    </message>
    <message>
        <source>%1 mail</source>
        <translation>%1 Mail</translation>
    </message>
    <message>
        <source>%1 mails</source>
        <translation>%1 Mails</translation>
    </message>
    <message>
        <source>(was down)</source>
        <translation>(war down)</translation>
    </message>
    <message>
        <source>The run goes on, but its lines cannot be written: %1.</source>
        <translation>Der Lauf geht weiter, aber seine Zeilen lassen sich nicht schreiben: %1.</translation>
    </message>
    <message>
        <source>There is no active site to watch yet. Add one and check it once, so that this run takes it on: tarnwickctl add URL, then: tarnwickctl check ID</source>
        <translation>Es gibt noch keine aktive Seite zu beobachten. Fügen Sie eine hinzu und prüfen Sie sie einmal, damit dieser Lauf sie aufnimmt: tarnwickctl add URL, dann: tarnwickctl check ID</translation>
    </message>
    <message>
        <source>The run has ended, since nobody reads its lines any more.</source>
        <translation>Der Lauf ist zu Ende, da niemand mehr seine Zeilen liest.</translation>
    </message>
    <message>
        <source>%1 is an option, and no setting. See: tarnwickctl option all %2</source>
        <translation>%1 ist eine Option und keine Einstellung. Siehe: tarnwickctl option all %2</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. The settings are: %2.</source>
        <translation>Es gibt keine Einstellung „%1“. Die Einstellungen sind: %2.</translation>
    </message>
    <message>
        <source>The setting %1 is on or off (also yes or no, true or false, 1 or 0), and &quot;%2&quot; is neither.</source>
        <translation>Die Einstellung %1 ist on oder off (auch yes oder no, true oder false, 1 oder 0), und „%2“ ist keines davon.</translation>
    </message>
    <message>
        <source>The setting %1 is a whole number of seconds from 1 to %2, and &quot;%3&quot; is none.</source>
        <translation>Die Einstellung %1 ist eine ganze Zahl von Sekunden von 1 bis %2, und „%3“ ist keine.</translation>
    </message>
    <message>
        <source>The setting %1 is stored.</source>
        <translation>Die Einstellung %1 ist gespeichert.</translation>
    </message>
    <message>
        <source>--post takes NAME=VALUE, and &quot;%1&quot; has no &quot;=&quot;.</source>
        <translation>--post nimmt NAME=VALUE, und „%1“ hat kein „=“.</translation>
    </message>
    <message>
        <source>The user name &quot;%1&quot; holds a line end, which could become a command to a server. Give it as one line.</source>
        <translation>Der Benutzername „%1“ enthält ein Zeilenende, aus dem ein Befehl an einen Server werden könnte. Geben Sie ihn in einer Zeile an.</translation>
    </message>
    <message>
        <source>Say what is to be changed of site %1. See: tarnwickctl set --help</source>
        <translation>Sagen Sie, was an Seite %1 geändert werden soll. Siehe: tarnwickctl set --help</translation>
    </message>
    <message>
        <source>Site %1 is changed.</source>
        <translation>Seite %1 ist geändert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid address. One looks like https://example.org/page.</source>
        <translation>„%1“ ist keine gültige Adresse. Eine sieht so aus: https://example.org/page.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be fetched: %2 is none of http, https, ftp and ftps.</source>
        <translation>„%1“ kann nicht geholt werden: %2 ist weder http noch https, ftp oder ftps.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a valid email address. One address is taken, like name@example.org: %2.</source>
        <translation>„%1“ ist keine gültige E-Mail-Adresse. Angenommen wird eine Adresse wie name@example.org: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no method. Take get or post.</source>
        <translation>„%1“ ist keine Methode. Nehmen Sie get oder post.</translation>
    </message>
    <message>
        <source>Site %1 is fetched with GET, so its POST variables are kept but not sent. To send them: tarnwickctl set %2 --method post</source>
        <translation>Seite %1 wird mit GET geholt, daher bleiben ihre POST-Variablen erhalten, werden aber nicht gesendet. Um sie zu senden: tarnwickctl set %2 --method post</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no interval. Take a number of minutes from 1 to %2.</source>
        <translation>„%1“ ist kein Abstand. Nehmen Sie eine Zahl von Minuten von 1 bis %2.</translation>
    </message>
    <message>
        <source>There is no site in the list yet. Add the first one with: tarnwickctl add URL</source>
        <translation>In der Liste steht noch keine Seite. Fügen Sie die erste hinzu mit: tarnwickctl add URL</translation>
    </message>
    <message>
        <source>No site of the list is like that.</source>
        <translation>Keine Seite der Liste ist so.</translation>
    </message>
    <message>
        <source>Delete %1, with its POST variables and its baseline?</source>
        <translation>%1 löschen, mit ihren POST-Variablen und ihrer Basis?</translation>
    </message>
    <message>
        <source>Delete %1 sites (%2) with their POST variables and baselines?</source>
        <translation>%1 Seiten löschen (%2), mit ihren POST-Variablen und Basen?</translation>
    </message>
    <message>
        <source>Site %1 is deleted.</source>
        <translation>Seite %1 ist gelöscht.</translation>
    </message>
    <message>
        <source>--folder names no folder. Give the one in which tarnwick.mdb lies.</source>
        <translation>--folder nennt keinen Ordner. Geben Sie den an, in dem tarnwick.mdb liegt.</translation>
    </message>
    <message>
        <source>Standard output took not all of it: %1.</source>
        <translation>Die Standardausgabe nahm nicht alles an: %1.</translation>
    </message>
    <message>
        <source>Or name the right folder with --folder.</source>
        <translation>Oder nennen Sie den richtigen Ordner mit --folder.</translation>
    </message>
    <message>
        <source>There is no site %1. The ids are listed by: tarnwickctl sites</source>
        <translation>Es gibt keine Seite %1. Die IDs zeigt: tarnwickctl sites</translation>
    </message>
    <message>
        <source>A copy is put in its place by: tarnwickctl restore backup.mdb</source>
        <translation>Eine Kopie setzt an ihre Stelle: tarnwickctl restore backup.mdb</translation>
    </message>
    <message>
        <source>A run that is on takes the site on once it was checked. Check it with: tarnwickctl check%1</source>
        <translation>Ein Lauf nimmt die Seite auf, sobald sie einmal geprüft wurde. Prüfen Sie sie mit: tarnwickctl check%1</translation>
    </message>
    <message>
        <source>A run that is on takes %1 of the sites on once they were checked. Check them with: tarnwickctl check%2</source>
        <translation>Ein Lauf nimmt %1 der Seiten auf, sobald sie geprüft wurden. Prüfen Sie sie mit: tarnwickctl check%2</translation>
    </message>
    <message>
        <source>Compact Failed. The database is as it was: %1</source>
        <translation>Verdichten gescheitert. Die Datenbank ist, wie sie war: %1</translation>
    </message>
    <message>
        <source>Compact Failed. There is no room for the compacted copy; the database is as it was: %1</source>
        <translation>Verdichten gescheitert. Für die verdichtete Kopie ist kein Platz; die Datenbank ist, wie sie war: %1</translation>
    </message>
    <message>
        <source>The database is compacted: %1 bytes before, %2 bytes after. backup.mdb is the copy from before.</source>
        <translation>Die Datenbank ist verdichtet: vorher %1 Bytes, nachher %2 Bytes. backup.mdb ist die Kopie von vorher.</translation>
    </message>
    <message>
        <source>The one before is kept as %1.</source>
        <translation>Die von vorher ist aufgehoben als %1.</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>STATE</source>
        <translation>STAND</translation>
    </message>
    <message>
        <source>METHOD</source>
        <translation>METHODE</translation>
    </message>
    <message>
        <source>INTERVAL</source>
        <translation>ABSTAND</translation>
    </message>
    <message>
        <source>LAST TEST</source>
        <translation>LETZTE PRÜFUNG</translation>
    </message>
    <message>
        <source>UP</source>
        <translation>UP</translation>
    </message>
    <message>
        <source>DOWN</source>
        <translation>DOWN</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>OPTION</source>
        <translation>OPTION</translation>
    </message>
    <message>
        <source>OWN</source>
        <translation>EIGEN</translation>
    </message>
    <message>
        <source>EFFECTIVE</source>
        <translation>WIRKSAM</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <source>VALUE</source>
        <translation>WERT</translation>
    </message>
    <message>
        <source>SETTING</source>
        <translation>EINSTELLUNG</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Last test</source>
        <translation>Letzte Prüfung</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Up</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Down</translation>
    </message>
    <message>
        <source>Alert mail</source>
        <translation>Alarm-Mail</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Baseline</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>not a page</source>
        <translation>keine Seite</translation>
    </message>
    <message>
        <source>up (inactive)</source>
        <translation>up (inaktiv)</translation>
    </message>
    <message>
        <source>down (inactive)</source>
        <translation>down (inaktiv)</translation>
    </message>
    <message>
        <source>not a page (inactive)</source>
        <translation>keine Seite (inaktiv)</translation>
    </message>
    <message>
        <source>- (inactive)</source>
        <translation>- (inaktiv)</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>yes, %1</source>
        <translation>ja, %1</translation>
    </message>
    <message>
        <source>no, %1</source>
        <translation>nein, %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>–</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>set; --show-password shows it</source>
        <translation>gesetzt; --show-password zeigt es</translation>
    </message>
    <message>
        <source>none yet: the next page that is fetched becomes it</source>
        <translation>noch keine: Die nächste Seite, die geholt wird, wird es</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Delete site %1 (%2), with its POST variables and its baseline?</source>
        <translation>Seite %1 (%2) löschen, mit ihren POST-Variablen und ihrer Basis?</translation>
    </message>
    <message>
        <source>The list is a copy of %1 now, with %2 site.</source>
        <translation>Die Liste ist jetzt eine Kopie von %1, mit %2 Seite.</translation>
    </message>
    <message>
        <source>The list is a copy of %1 now, with %2 sites.</source>
        <translation>Die Liste ist jetzt eine Kopie von %1, mit %2 Seiten.</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Aufruf</translation>
    </message>
    <message>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <source>POSITIONALS</source>
        <translation>ARGUMENTE</translation>
    </message>
    <message>
        <source>REQUIRED</source>
        <translation>NÖTIG</translation>
    </message>
    <message>
        <source>Needs</source>
        <translation>Braucht</translation>
    </message>
    <message>
        <source>Excludes</source>
        <translation>Nicht mit</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Verbs</source>
        <translation>Verben</translation>
    </message>
    <message>
        <source>Positionals</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Examples:</source>
        <translation>Beispiele:</translation>
    </message>
    <message>
        <source>Print this help message and exit</source>
        <translation>Diese Hilfe ausgeben und enden</translation>
    </message>
    <message>
        <source>Display program version information and exit</source>
        <translation>Die Version ausgeben und enden</translation>
    </message>
    <message>
        <source>From this moment on: %1</source>
        <translation>Von diesem Zeitpunkt an: %1</translation>
    </message>
    <message>
        <source>The kind of the file, where its content does not show it: %1</source>
        <translation>Die Art der Datei, wo ihr Inhalt sie nicht zeigt: %1</translation>
    </message>
    <message>
        <source>Names, and what they take:</source>
        <translation>Namen, und was sie nehmen:</translation>
    </message>
    <message>
        <source>Takes %1.</source>
        <translation>Nimmt %1.</translation>
    </message>
    <message>
        <source>Takes &quot;%1&quot; or &quot;%2&quot;.</source>
        <translation>Nimmt „%1“ oder „%2“.</translation>
    </message>
    <message>
        <source>Takes &quot;%1&quot; or &quot;%2&quot;. In a new list: &quot;%3&quot;.</source>
        <translation>Nimmt „%1“ oder „%2“. In einer neuen Liste: „%3“.</translation>
    </message>
    <message>
        <source>Takes %1. In a new list: &quot;%2&quot;.</source>
        <translation>Nimmt %1. In einer neuen Liste: „%2“.</translation>
    </message>
    <message>
        <source>Not set: %1.</source>
        <translation>Nicht gesetzt: %1.</translation>
    </message>
    <message>
        <source>The user name for the fetch; &quot;&quot; for none</source>
        <translation>Der Benutzername für den Abruf; &quot;&quot; für keinen</translation>
    </message>
    <message>
        <source>Read the password from a file, without its line end; - is standard input</source>
        <translation>Das Passwort aus einer Datei lesen, ohne ihr Zeilenende; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>A POST variable; may be given several times</source>
        <translation>Eine POST-Variable; kann mehrmals angegeben werden</translation>
    </message>
    <message>
        <source>Mail no failures; the address is kept</source>
        <translation>Keine Fehlschläge mailen; die Adresse bleibt</translation>
    </message>
    <message>
        <source>%1 is required</source>
        <translation>%1 ist nötig</translation>
    </message>
    <message>
        <source>%1 requires %2</source>
        <translation>%1 braucht %2</translation>
    </message>
    <message>
        <source>%1 excludes %2</source>
        <translation>%1 geht nicht mit %2</translation>
    </message>
    <message>
        <source>%1: %2 not in {%3}</source>
        <translation>%1: %2 ist keines von {%3}</translation>
    </message>
    <message>
        <source>%1: Value %2 not in range [%3 - %4]</source>
        <translation>%1: Der Wert %2 liegt nicht im Bereich [%3 - %4]</translation>
    </message>
    <message>
        <source>%1: Value %2 not in range %3 to %4</source>
        <translation>%1: Der Wert %2 liegt nicht im Bereich %3 bis %4</translation>
    </message>
    <message>
        <source>The following argument was not expected: %1</source>
        <translation>Dieses Argument wurde nicht erwartet: %1</translation>
    </message>
    <message>
        <source>The following arguments were not expected: %1</source>
        <translation>Diese Argumente wurden nicht erwartet: %1</translation>
    </message>
    <message>
        <source>Could not convert: %1</source>
        <translation>Nicht zu verstehen: %1</translation>
    </message>
    <message>
        <source>%1: %2 required %3 missing</source>
        <translation>%1: %2 nötig, %3 fehlt</translation>
    </message>
    <message>
        <source>%1: 1 required %2 missing</source>
        <translation>%1: %2 fehlt</translation>
    </message>
    <message>
        <source>There is no display for the window: neither DISPLAY nor WAYLAND_DISPLAY is set.</source>
        <translation>Es gibt keine Anzeige für das Fenster: Weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt.</translation>
    </message>
    <message>
        <source>The window cannot be opened on the display %1.</source>
        <translation>Das Fenster lässt sich auf der Anzeige %1 nicht öffnen.</translation>
    </message>
    <message>
        <source>tarnwick: %1 Start it on a desktop, or watch your sites in a terminal with: tarnwickctl run</source>
        <translation>tarnwick: %1 Starten Sie es auf einem Desktop, oder beobachten Sie Ihre Seiten in einem Terminal mit: tarnwickctl run</translation>
    </message>
    <message>
        <source>tarnwick: There is no option &quot;%1&quot;. See: tarnwick --help</source>
        <translation>tarnwick: Es gibt keine Option „%1“. Siehe: tarnwick --help</translation>
    </message>
    <message>
        <source>Usage: tarnwick [OPTIONS]</source>
        <translation>Aufruf: tarnwick [OPTIONEN]</translation>
    </message>
    <message>
        <source>Opens the window of Tarnwick, which watches web pages for changes of their content.</source>
        <translation>Öffnet das Fenster von Tarnwick, das Webseiten auf Änderungen ihres Inhalts beobachtet.</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>-h, --help     Print this text and end</source>
        <translation>-h, --help     Diesen Text ausgeben und enden</translation>
    </message>
    <message>
        <source>--version      Print the version and end</source>
        <translation>--version      Die Version ausgeben und enden</translation>
    </message>
    <message>
        <source>Options of the Qt toolkit, for instance -style, -platform and -display, are understood.</source>
        <translation>Optionen des Qt-Toolkits, zum Beispiel -style, -platform und -display, werden verstanden.</translation>
    </message>
    <message>
        <source>In a terminal the same work is done by: tarnwickctl</source>
        <translation>In einem Terminal tut dieselbe Arbeit: tarnwickctl</translation>
    </message>
    <message>
        <source>Check sites once, now: all active ones, those named, or those that are due</source>
        <translation>Seiten einmal prüfen, jetzt: alle aktiven, die genannten oder die fälligen</translation>
    </message>
    <message>
        <source>The sites to check, active or not</source>
        <translation>Die zu prüfenden Seiten, aktiv oder nicht</translation>
    </message>
    <message>
        <source>Only the active sites whose interval has elapsed; one that was never checked is none of them</source>
        <translation>Nur die aktiven Seiten, deren Abstand verstrichen ist; eine nie geprüfte gehört nicht dazu</translation>
    </message>
    <message>
        <source>Each result is recorded, and each failure raises the alerts that the settings switch on, as in a run.</source>
        <translation>Jedes Ergebnis wird aufgezeichnet, und jeder Fehlschlag löst die eingestellten Alarme aus, wie in einem Lauf.</translation>
    </message>
    <message>
        <source>Exit status: 0 when every site is up, 1 when one is down, 2 when the check could not be made,</source>
        <translation>Exit-Status: 0: jede Seite ist „up“, 1: eine ist „down“, 2: die Prüfung war nicht möglich,</translation>
    </message>
    <message>
        <source>3 when none is down, but one was changed, switched off or deleted meanwhile and its page was dropped,</source>
        <translation>3: keine „down“, aber eine inzwischen geändert, ausgeschaltet oder gelöscht und verworfen,</translation>
    </message>
    <message>
        <source>4 when neither is so, but one is up only because its baseline is the text of a fetch that fails.</source>
        <translation>4: weder noch, aber eine ist nur „up“, weil ein scheiternder Abruf ihre Basis ist.</translation>
    </message>
    <message>
        <source>every active site, a line each</source>
        <translation>jede aktive Seite, je eine Zeile</translation>
    </message>
    <message>
        <source>two sites</source>
        <translation>zwei Seiten</translation>
    </message>
    <message>
        <source>what is due, for a script</source>
        <translation>was fällig ist, für ein Skript</translation>
    </message>
    <message>
        <source>Tarnwick watches web sites for changes of their content: the terminal front end. It works on the list of sites of a program folder, with or without the window open on the same folder.</source>
        <translation>Tarnwick beobachtet Webseiten auf Änderungen ihres Inhalts: die Bedienung im Terminal. Sie arbeitet mit der Liste von Seiten eines Programmordners, ob das Fenster auf demselben Ordner offen ist oder nicht.</translation>
    </message>
    <message>
        <source>Exit status: 0 when all is well, 1 when a site is down or a page differs, 2 when the work failed.</source>
        <translation>Exit-Status: 0: alles in Ordnung, 1: eine Seite ist „down“ oder weicht ab, 2: gescheitert.</translation>
    </message>
    <message>
        <source>Each verb has a --help with examples.</source>
        <translation>Jedes Verb hat ein --help mit Beispielen.</translation>
    </message>
    <message>
        <source>The program folder, in which tarnwick.mdb lies (default: the tool&apos;s own, or yours where that one is shared)</source>
        <translation>Der Programmordner, in dem tarnwick.mdb liegt (sonst der des Werkzeugs, oder Ihr eigener, wo jener geteilt ist)</translation>
    </message>
    <message>
        <source>Print what lets a shell complete the tool&apos;s verbs and options</source>
        <translation>Ausgeben, womit eine Shell Verben und Optionen des Werkzeugs ergänzt</translation>
    </message>
    <message>
        <source>bash, zsh or fish</source>
        <translation>bash, zsh oder fish</translation>
    </message>
    <message>
        <source>The packages bring it along. From an archive, for your own shell:</source>
        <translation>Die Pakete bringen es mit. Aus einem Archiv, für Ihre eigene Shell:</translation>
    </message>
    <message>
        <source>for bash</source>
        <translation>für bash</translation>
    </message>
    <message>
        <source>for fish</source>
        <translation>für fish</translation>
    </message>
    <message>
        <source>Set the counters of successes and failures to 0</source>
        <translation>Die Zähler der Erfolge und Fehlschläge auf 0 setzen</translation>
    </message>
    <message>
        <source>The site&apos;s id, as the verb sites lists it; every site without one</source>
        <translation>Die ID der Seite, wie das Verb sites sie zeigt; ohne sie jede Seite</translation>
    </message>
    <message>
        <source>Whether a site is up or down stays as it is; the log stays too.</source>
        <translation>Ob eine Seite „up“ oder „down“ ist, bleibt; das Log bleibt auch.</translation>
    </message>
    <message>
        <source>of one site</source>
        <translation>die einer Seite</translation>
    </message>
    <message>
        <source>of all sites</source>
        <translation>die aller Seiten</translation>
    </message>
    <message>
        <source>Write the list of sites to a CSV or JSON file</source>
        <translation>Die Liste der Seiten in eine CSV- oder JSON-Datei schreiben</translation>
    </message>
    <message>
        <source>The file, whose name ends in .csv or .json; - is standard output</source>
        <translation>Die Datei, deren Name auf .csv oder .json endet; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>The file&apos;s format, whatever its name: csv or json</source>
        <translation>Das Format der Datei, wie immer sie heißt: csv oder json</translation>
    </message>
    <message>
        <source>Leave the passwords out; an import then keeps those stored</source>
        <translation>Die Passwörter weglassen; ein Import behält dann die gespeicherten</translation>
    </message>
    <message>
        <source>Write the pages that the sites are compared with as well</source>
        <translation>Auch die Seiten schreiben, mit denen verglichen wird</translation>
    </message>
    <message>
        <source>for a spreadsheet, or for another computer</source>
        <translation>für eine Tabelle oder einen anderen Rechner</translation>
    </message>
    <message>
        <source>a copy of the whole list</source>
        <translation>eine Kopie der ganzen Liste</translation>
    </message>
    <message>
        <source>to standard output</source>
        <translation>auf die Standardausgabe</translation>
    </message>
    <message>
        <source>Take sites into the list from a file of Tarnwick or of another program</source>
        <translation>Seiten in die Liste aufnehmen, aus einer Datei von Tarnwick oder eines anderen Programms</translation>
    </message>
    <message>
        <source>The file; - is standard input</source>
        <translation>Die Datei; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>Add every site as a new one, whatever its id in the file; the options of all sites stay</source>
        <translation>Jede Seite als neue hinzufügen, was immer ihre ID in der Datei ist; die Optionen aller Seiten bleiben</translation>
    </message>
    <message>
        <source>Delete the sites that the file does not name</source>
        <translation>Die Seiten löschen, die die Datei nicht nennt</translation>
    </message>
    <message>
        <source>Do not ask when the file has no site, so that --replace deletes every one</source>
        <translation>Nicht fragen, wenn die Datei keine Seite hat und --replace daher jede löscht</translation>
    </message>
    <message>
        <source>Only say what would be done</source>
        <translation>Nur sagen, was geschähe</translation>
    </message>
    <message>
        <source>A CSV file names its columns in the first line, separated by commas. Only url must be there; the others are idSite, method (get or post), active, tInterval (minutes), alertEmail, email, sUserName, sPassWord, postVars (name=value&amp;name=value, other bytes than letters and digits as %XX), baseline (base64). An empty idSite, method, tInterval or yes/no is as one left out. A JSON file has the form {&quot;tarnwick&quot;: 1, &quot;sites&quot;: [{&quot;url&quot;: ...}, ...]}.</source>
        <translation>Eine CSV-Datei nennt ihre Spalten in der ersten Zeile, durch Kommas getrennt. Nur url muss da sein; die übrigen sind idSite, method (get oder post), active, tInterval (Minuten), alertEmail, email, sUserName, sPassWord, postVars (name=value&amp;name=value, andere Bytes als Buchstaben und Ziffern als %XX), baseline (base64). Ein leeres idSite, method, tInterval oder Ja/Nein-Feld gilt als weggelassen. Eine JSON-Datei hat die Form {&quot;tarnwick&quot;: 1, &quot;sites&quot;: [{&quot;url&quot;: ...}, ...]}.</translation>
    </message>
    <message>
        <source>what would be added and changed</source>
        <translation>was hinzugefügt und geändert würde</translation>
    </message>
    <message>
        <source>do it</source>
        <translation>es tun</translation>
    </message>
    <message>
        <source>make the list as the file has it</source>
        <translation>die Liste so machen, wie die Datei sie hat</translation>
    </message>
    <message>
        <source>the list of somebody else, beside one&apos;s own</source>
        <translation>die Liste eines anderen, neben der eigenen</translation>
    </message>
    <message>
        <source>what of a browser&apos;s bookmarks would be watched</source>
        <translation>was von den Lesezeichen eines Browsers beobachtet würde</translation>
    </message>
    <message>
        <source>Lay a fresh list and mail template into a folder that has never had any</source>
        <translation>Eine frische Liste und Mail-Vorlage in einen Ordner legen, der nie eine hatte</translation>
    </message>
    <message>
        <source>The folder is made when it is missing. What is there stays as it is, and a list that has gone missing is an error. Without --folder the first start of the program does it by itself.</source>
        <translation>Der Ordner wird angelegt, wenn er fehlt. Was da ist, bleibt, und eine verschwundene Liste ist ein Fehler. Ohne --folder tut es der erste Start des Programms von selbst.</translation>
    </message>
    <message>
        <source>for a list beside your own</source>
        <translation>für eine Liste neben Ihrer eigenen</translation>
    </message>
    <message>
        <source>whether one was laid, for a script</source>
        <translation>ob eine gelegt wurde, für ein Skript</translation>
    </message>
    <message>
        <source>Show the log of check results, the oldest first, or empty it</source>
        <translation>Das Log der Prüfergebnisse zeigen, das älteste zuerst, oder es leeren</translation>
    </message>
    <message>
        <source>show (default), clear</source>
        <translation>show (sonst), clear</translation>
    </message>
    <message>
        <source>Only this site, also one that is deleted</source>
        <translation>Nur diese Seite, auch eine gelöschte</translation>
    </message>
    <message>
        <source>Only checks that failed</source>
        <translation>Nur Prüfungen, die scheiterten</translation>
    </message>
    <message>
        <source>Only the N newest of them</source>
        <translation>Nur die N neuesten davon</translation>
    </message>
    <message>
        <source>The pages of the checks that failed as well; none is kept of the others</source>
        <translation>Auch die Seiten der gescheiterten Prüfungen; von den anderen wird keine aufgehoben</translation>
    </message>
    <message>
        <source>For &quot;clear&quot;: do not ask; needed where nobody can be asked</source>
        <translation>Für „clear“: nicht fragen; nötig, wo niemand gefragt werden kann</translation>
    </message>
    <message>
        <source>The setting clogs says whether results are written to the log.</source>
        <translation>Die Einstellung clogs sagt, ob Ergebnisse ins Log geschrieben werden.</translation>
    </message>
    <message>
        <source>what has failed today</source>
        <translation>was heute gescheitert ist</translation>
    </message>
    <message>
        <source>the last 20 checks of a site</source>
        <translation>die letzten 20 Prüfungen einer Seite</translation>
    </message>
    <message>
        <source>how often each address has failed in the last two hours</source>
        <translation>wie oft jede Adresse in den letzten zwei Stunden scheiterte</translation>
    </message>
    <message>
        <source>empty it, without a question</source>
        <translation>es leeren, ohne Frage</translation>
    </message>
    <message>
        <source>Show or change what a site, or the program, does otherwise than originally</source>
        <translation>Zeigen oder ändern, was eine Seite oder das Programm anders macht als ursprünglich</translation>
    </message>
    <message>
        <source>all, or the id of a site as the verb sites lists it</source>
        <translation>all, oder die ID einer Seite, wie das Verb sites sie zeigt</translation>
    </message>
    <message>
        <source>NAME shows an option, NAME=VALUE sets it, NAME= removes it; all are listed without one</source>
        <translation>NAME zeigt eine Option, NAME=VALUE setzt sie, NAME= entfernt sie; ohne eine werden alle gezeigt</translation>
    </message>
    <message>
        <source>A site without a value of its own goes by the one for all. Where neither is set, the program does as it did originally.</source>
        <translation>Eine Seite ohne eigenen Wert richtet sich nach dem für alle. Ist keiner gesetzt, verhält sich das Programm wie ursprünglich.</translation>
    </message>
    <message>
        <source>what is set for all sites</source>
        <translation>was für alle Seiten gesetzt ist</translation>
    </message>
    <message>
        <source>hand over a mail in half a minute at most</source>
        <translation>eine Mail in höchstens einer halben Minute übergeben</translation>
    </message>
    <message>
        <source>one site does otherwise</source>
        <translation>eine Seite macht es anders</translation>
    </message>
    <message>
        <source>and again as all others</source>
        <translation>und wieder wie alle anderen</translation>
    </message>
    <message>
        <source>Show or change the page that a site is compared with</source>
        <translation>Die Seite zeigen oder ändern, mit der verglichen wird</translation>
    </message>
    <message>
        <source>For &quot;accept&quot;: also a latest page that looks like a failed fetch</source>
        <translation>Für „accept“: auch einen letzten Inhalt, der nach gescheitertem Abruf aussieht</translation>
    </message>
    <message>
        <source>the baseline, byte for byte</source>
        <translation>die Basis, Byte für Byte</translation>
    </message>
    <message>
        <source>an edited one</source>
        <translation>eine bearbeitete</translation>
    </message>
    <message>
        <source>what the last check fetched is how the page shall be</source>
        <translation>was die letzte Prüfung holte, ist so, wie die Seite sein soll</translation>
    </message>
    <message>
        <source>fetch the page now and take it</source>
        <translation>die Seite jetzt holen und nehmen</translation>
    </message>
    <message>
        <source>Compare a site&apos;s baseline with its latest page, as a unified diff</source>
        <translation>Die Basis einer Seite mit ihrem letzten Inhalt vergleichen, als Unified Diff</translation>
    </message>
    <message>
        <source>what has changed, coloured on a terminal</source>
        <translation>was sich geändert hat, auf einem Terminal farbig</translation>
    </message>
    <message>
        <source>for the program patch</source>
        <translation>für das Programm patch</translation>
    </message>
    <message>
        <source>List, add, change or remove the POST variables of a site</source>
        <translation>Die POST-Variablen einer Seite zeigen, hinzufügen, ändern oder entfernen</translation>
    </message>
    <message>
        <source>list (default), add, change, remove</source>
        <translation>list (sonst), add, change, remove</translation>
    </message>
    <message>
        <source>The variable&apos;s name</source>
        <translation>Der Name der Variablen</translation>
    </message>
    <message>
        <source>Its value; not needed to find the only one of a name</source>
        <translation>Ihr Wert; nicht nötig, um die einzige eines Namens zu finden</translation>
    </message>
    <message>
        <source>For &quot;change&quot;: the new name</source>
        <translation>Für „change“: der neue Name</translation>
    </message>
    <message>
        <source>For &quot;change&quot;: the new value</source>
        <translation>Für „change“: der neue Wert</translation>
    </message>
    <message>
        <source>For &quot;change&quot;: the new name alone</source>
        <translation>Für „change“: nur der neue Name</translation>
    </message>
    <message>
        <source>For &quot;change&quot;: the new value alone</source>
        <translation>Für „change“: nur der neue Wert</translation>
    </message>
    <message>
        <source>For &quot;add&quot;: read the value from a file, without its line end, so that no other user of this machine sees it on the command line; - is standard input</source>
        <translation>Für „add“: den Wert aus einer Datei lesen, ohne ihr Zeilenende, damit kein anderer Benutzer dieses Rechners ihn in der Befehlszeile sieht; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>Names and values are found exactly as they are: letter case and blanks count. What begins with a minus sign is written behind --.</source>
        <translation>Namen und Werte werden genau so gefunden, wie sie sind: Groß- und Kleinschreibung und Leerzeichen zählen. Was mit einem Minuszeichen beginnt, wird hinter -- geschrieben.</translation>
    </message>
    <message>
        <source>the variables, in the order in which they are sent</source>
        <translation>die Variablen in der Reihenfolge, in der sie gesendet werden</translation>
    </message>
    <message>
        <source>one more</source>
        <translation>eine mehr</translation>
    </message>
    <message>
        <source>the one of this name and value</source>
        <translation>die mit diesem Namen und Wert</translation>
    </message>
    <message>
        <source>the same, where it is the only one of its name</source>
        <translation>dasselbe, wo es die einzige ihres Namens ist</translation>
    </message>
    <message>
        <source>one less</source>
        <translation>eine weniger</translation>
    </message>
    <message>
        <source>a value with a minus sign</source>
        <translation>ein Wert mit einem Minuszeichen</translation>
    </message>
    <message>
        <source>Watch the sites until interrupted: check all active ones, then each when it is due</source>
        <translation>Die Seiten bis zur Unterbrechung beobachten: alle aktiven prüfen, dann jede, wenn sie fällig ist</translation>
    </message>
    <message>
        <source>A line for every result, not only for failures and recoveries</source>
        <translation>Eine Zeile für jedes Ergebnis, nicht nur für Fehlschläge und Erholungen</translation>
    </message>
    <message>
        <source>Print an object a line for every event</source>
        <translation>Je Ereignis ein Objekt in einer Zeile ausgeben</translation>
    </message>
    <message>
        <source>Ctrl+C (SIGINT) and SIGTERM stop the run and close the database; so does the end of what reads its output. One run at a time is possible on a folder. A site that is added meanwhile is taken on once it was checked.</source>
        <translation>Strg+C (SIGINT) und SIGTERM beenden den Lauf und schließen die Datenbank; ebenso das Ende dessen, was die Ausgabe liest. Auf einem Ordner ist ein Lauf auf einmal möglich. Eine inzwischen hinzugefügte Seite wird aufgenommen, sobald sie einmal geprüft wurde.</translation>
    </message>
    <message>
        <source>a countdown on a terminal, lines with their time elsewhere</source>
        <translation>ein Countdown auf einem Terminal, sonst Zeilen mit ihrer Zeit</translation>
    </message>
    <message>
        <source>only the failures</source>
        <translation>nur die Fehlschläge</translation>
    </message>
    <message>
        <source>Show or change the program&apos;s settings</source>
        <translation>Die Einstellungen des Programms zeigen oder ändern</translation>
    </message>
    <message>
        <source>A setting, in any letter case; all of them without one</source>
        <translation>Eine Einstellung, groß oder klein geschrieben; ohne sie alle</translation>
    </message>
    <message>
        <source>Its new value: a text, seconds, or on or off</source>
        <translation>Ihr neuer Wert: ein Text, Sekunden, oder on oder off</translation>
    </message>
    <message>
        <source>A change takes effect at the next check, also in a run that is on.</source>
        <translation>Eine Änderung wirkt ab der nächsten Prüfung, auch in einem Lauf, der im Gange ist.</translation>
    </message>
    <message>
        <source>all of them</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>wait a minute for a page</source>
        <translation>eine Minute auf eine Seite warten</translation>
    </message>
    <message>
        <source>send alert mails</source>
        <translation>Alarm-Mails senden</translation>
    </message>
    <message>
        <source>an empty text</source>
        <translation>ein leerer Text</translation>
    </message>
    <message>
        <source>The password for the fetch; other users of this machine may see it on the command line, so prefer --password-file</source>
        <translation>Das Passwort für den Abruf; andere Benutzer dieses Rechners können es in der Befehlszeile sehen, nehmen Sie daher lieber --password-file</translation>
    </message>
    <message>
        <source>Leave it out of runs</source>
        <translation>Sie aus Läufen heraushalten</translation>
    </message>
    <message>
        <source>Add a site to the list and print its id</source>
        <translation>Eine Seite in die Liste aufnehmen und ihre ID ausgeben</translation>
    </message>
    <message>
        <source>Without options it is fetched with GET every 10 minutes; with --post it is fetched with POST. The first page that is fetched becomes its baseline. A run that is on takes the site on once it was checked.</source>
        <translation>Ohne Optionen wird sie alle 10 Minuten mit GET geholt; mit --post wird sie mit POST geholt. Die erste Seite, die geholt wird, wird ihre Basis. Ein Lauf, der im Gange ist, nimmt sie auf, sobald sie einmal geprüft wurde.</translation>
    </message>
    <message>
        <source>watch a page</source>
        <translation>eine Seite beobachten</translation>
    </message>
    <message>
        <source>and check it at once, so that a run takes it on</source>
        <translation>und sie gleich prüfen, damit ein Lauf sie aufnimmt</translation>
    </message>
    <message>
        <source>what a form answers</source>
        <translation>was ein Formular antwortet</translation>
    </message>
    <message>
        <source>behind a password</source>
        <translation>hinter einem Passwort</translation>
    </message>
    <message>
        <source>with alert mails</source>
        <translation>mit Alarm-Mails</translation>
    </message>
    <message>
        <source>The address of the page: http, https, ftp or ftps</source>
        <translation>Die Adresse der Seite: http, https, ftp oder ftps</translation>
    </message>
    <message>
        <source>Let runs check it</source>
        <translation>Sie in Läufen prüfen lassen</translation>
    </message>
    <message>
        <source>Change a site; what is not named stays as it is</source>
        <translation>Eine Seite ändern; was nicht genannt ist, bleibt, wie es ist</translation>
    </message>
    <message>
        <source>With --post the variables given replace all that the site has; the verb post changes single ones.</source>
        <translation>Mit --post ersetzen die angegebenen Variablen alle der Seite; das Verb post ändert einzelne.</translation>
    </message>
    <message>
        <source>check it more often</source>
        <translation>sie öfter prüfen</translation>
    </message>
    <message>
        <source>the page has moved</source>
        <translation>die Seite ist umgezogen</translation>
    </message>
    <message>
        <source>no credentials any more</source>
        <translation>keine Zugangsdaten mehr</translation>
    </message>
    <message>
        <source>List the sites</source>
        <translation>Die Seiten zeigen</translation>
    </message>
    <message>
        <source>Only those whose last check failed</source>
        <translation>Nur die, deren letzte Prüfung scheiterte</translation>
    </message>
    <message>
        <source>Only those that a run checks</source>
        <translation>Nur die, die ein Lauf prüft</translation>
    </message>
    <message>
        <source>Only those that a run leaves out</source>
        <translation>Nur die, die ein Lauf auslässt</translation>
    </message>
    <message>
        <source>STATE is &quot;up&quot; or &quot;down&quot; as the last check found, and &quot;-&quot; where none has been made. It is &quot;not a page&quot;</source>
        <translation>STAND ist „up“ oder „down“ nach der letzten Prüfung, „-“ ohne eine, und „keine Seite“,</translation>
    </message>
    <message>
        <source>where a site is up only because the text of a fetch that fails is its baseline, which the log tells.</source>
        <translation>wo eine Seite nur „up“ ist, weil ein scheiternder Abruf ihre Basis ist; das sagt das Log.</translation>
    </message>
    <message>
        <source>what needs a look</source>
        <translation>was Aufmerksamkeit braucht</translation>
    </message>
    <message>
        <source>the addresses that are down</source>
        <translation>die Adressen, die „down“ sind</translation>
    </message>
    <message>
        <source>Show all about one site</source>
        <translation>Alles über eine Seite zeigen</translation>
    </message>
    <message>
        <source>Show the password too</source>
        <translation>Auch das Passwort zeigen</translation>
    </message>
    <message>
        <source>its settings, counters, POST variables, and the size of its baseline</source>
        <translation>ihre Einstellungen, Zähler, POST-Variablen und die Größe ihrer Basis</translation>
    </message>
    <message>
        <source>the same for a script, with the password</source>
        <translation>dasselbe für ein Skript, mit dem Passwort</translation>
    </message>
    <message>
        <source>Delete sites with their POST variables and baselines</source>
        <translation>Seiten mit ihren POST-Variablen und Basen löschen</translation>
    </message>
    <message>
        <source>The ids of the sites, as the verb sites lists them</source>
        <translation>Die IDs der Seiten, wie das Verb sites sie zeigt</translation>
    </message>
    <message>
        <source>Do not ask; needed where nobody can be asked</source>
        <translation>Nicht fragen; nötig, wo niemand gefragt werden kann</translation>
    </message>
    <message>
        <source>All of them are deleted, or none when one is not in the list. What the log says of them stays.</source>
        <translation>Alle werden gelöscht, oder keine, wenn eine nicht in der Liste steht. Was das Log von ihnen sagt, bleibt.</translation>
    </message>
    <message>
        <source>asks first</source>
        <translation>fragt zuerst</translation>
    </message>
    <message>
        <source>three sites, without a question</source>
        <translation>drei Seiten, ohne Frage</translation>
    </message>
    <message>
        <source>Put a copy of the list in its place, and keep the list as it was</source>
        <translation>Eine Kopie der Liste an deren Stelle setzen und die Liste so aufheben, wie sie war</translation>
    </message>
    <message>
        <source>The copy, for instance backup.mdb; it stays as it is</source>
        <translation>Die Kopie, zum Beispiel backup.mdb; sie bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>The copy must be a sound list. The list before, damaged or not, is kept beside it under a name with the date. No other program may have the list open: end a run and close the window first.</source>
        <translation>Die Kopie muss eine heile Liste sein. Die Liste von vorher, beschädigt oder nicht, wird daneben unter einem Namen mit dem Datum aufgehoben. Kein anderes Programm darf die Liste offen haben: Beenden Sie erst einen Lauf und schließen Sie das Fenster.</translation>
    </message>
    <message>
        <source>goes back to the list before the last compaction</source>
        <translation>geht auf die Liste vor dem letzten Verdichten zurück</translation>
    </message>
    <message>
        <source>the same with a copy, for a script</source>
        <translation>dasselbe mit einer Kopie, für ein Skript</translation>
    </message>
    <message>
        <source>Write the report of today&apos;s log and print its path</source>
        <translation>Den Bericht aus dem heutigen Log schreiben und seinen Pfad ausgeben</translation>
    </message>
    <message>
        <source>It is reports/report.html in the program folder; only the newest is kept.</source>
        <translation>Er ist reports/report.html im Programmordner; nur der neueste bleibt.</translation>
    </message>
    <message>
        <source>the path of the page that was written</source>
        <translation>der Pfad der geschriebenen Seite</translation>
    </message>
    <message>
        <source>the same for a script</source>
        <translation>dasselbe für ein Skript</translation>
    </message>
    <message>
        <source>Shrink the database, and keep a copy of it as it was</source>
        <translation>Die Datenbank verkleinern und eine Kopie davon aufheben, wie sie war</translation>
    </message>
    <message>
        <source>The copy is backup.mdb in the program folder. No other program may have the database open: end a run and close the window first.</source>
        <translation>Die Kopie ist backup.mdb im Programmordner. Kein anderes Programm darf die Datenbank offen haben: Beenden Sie erst einen Lauf und schließen Sie das Fenster.</translation>
    </message>
    <message>
        <source>prints the sizes before and after</source>
        <translation>gibt die Größen vorher und nachher aus</translation>
    </message>
    <message>
        <source>The site&apos;s id, as the verb sites lists it</source>
        <translation>Die ID der Seite, wie das Verb sites sie zeigt</translation>
    </message>
    <message>
        <source>Print JSON</source>
        <translation>JSON ausgeben</translation>
    </message>
    <message>
        <source>How the page is fetched</source>
        <translation>Wie die Seite geholt wird</translation>
    </message>
    <message>
        <source>Whether runs check it</source>
        <translation>Ob Läufe sie prüfen</translation>
    </message>
    <message>
        <source>The time between two checks, 1 to 32767 minutes</source>
        <translation>Die Zeit zwischen zwei Prüfungen, 1 bis 32767 Minuten</translation>
    </message>
    <message>
        <source>Alert mails</source>
        <translation>Alarm-Mails</translation>
    </message>
    <message>
        <source>Whether its failures are mailed</source>
        <translation>Ob ihre Fehlschläge gemailt werden</translation>
    </message>
    <message>
        <source>Mail address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Mail its failures to this address</source>
        <translation>Ihre Fehlschläge an diese Adresse mailen</translation>
    </message>
    <message>
        <source>The user name for the fetch</source>
        <translation>Der Benutzername für den Abruf</translation>
    </message>
    <message>
        <source>The password for the fetch</source>
        <translation>Das Passwort für den Abruf</translation>
    </message>
    <message>
        <source>the address that alert mails come from</source>
        <translation>die Adresse, von der Alarm-Mails kommen</translation>
    </message>
    <message>
        <source>Mail server</source>
        <translation>Mail-Server</translation>
    </message>
    <message>
        <source>the mail server that alert mails are handed to</source>
        <translation>der Mail-Server, dem Alarm-Mails übergeben werden</translation>
    </message>
    <message>
        <source>the .wav file that an alert plays</source>
        <translation>die .wav-Datei, die ein Alarm abspielt</translation>
    </message>
    <message>
        <source>the program that an alert starts</source>
        <translation>das Programm, das ein Alarm startet</translation>
    </message>
    <message>
        <source>how long a fetch may take, in seconds</source>
        <translation>wie lange ein Abruf dauern darf, in Sekunden</translation>
    </message>
    <message>
        <source>write every result to the log</source>
        <translation>jedes Ergebnis ins Log schreiben</translation>
    </message>
    <message>
        <source>write the daily report during a run</source>
        <translation>während eines Laufs den Tagesbericht schreiben</translation>
    </message>
    <message>
        <source>Play sound</source>
        <translation>Ton abspielen</translation>
    </message>
    <message>
        <source>play the alert sound</source>
        <translation>den Alarmton abspielen</translation>
    </message>
    <message>
        <source>Start program</source>
        <translation>Programm starten</translation>
    </message>
    <message>
        <source>start the alert program</source>
        <translation>das Alarmprogramm starten</translation>
    </message>
    <message>
        <source>Aborting compact: %1</source>
        <translation>Verdichten abgebrochen: %1</translation>
    </message>
    <message>
        <source>%1: changed while it was checked</source>
        <translation>%1: während der Prüfung geändert</translation>
    </message>
    <message>
        <source>It is: tarnwickctl post %1 NAME VALUE, or: NAME --value-file FILE</source>
        <translation>Richtig ist: tarnwickctl post %1 NAME VALUE, oder: NAME --value-file FILE</translation>
    </message>
    <message>
        <source>It is: tarnwickctl post %1 NAME VALUE NEW_NAME NEW_VALUE, or: NAME [VALUE] [--name NEW_NAME] [--value NEW_VALUE]</source>
        <translation>Richtig ist: tarnwickctl post %1 NAME VALUE NEW_NAME NEW_VALUE, oder: NAME [VALUE] [--name NEW_NAME] [--value NEW_VALUE]</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>the settings and the %1 results of the log, which only an empty list takes</source>
        <translation>die Einstellungen und die %1 Ergebnisse des Logs, die nur eine leere Liste aufnimmt</translation>
    </message>
    <message>
        <source>a Jet database of the same tables</source>
        <translation>eine Jet-Datenbank mit denselben Tabellen</translation>
    </message>
    <message>
        <source>this is no Jet database: see whether it is the right file</source>
        <translation>dies ist keine Jet-Datenbank: Sehen Sie nach, ob es die richtige Datei ist</translation>
    </message>
    <message>
        <source>the database has no table sites, so it is none of this program</source>
        <translation>die Datenbank hat keine Tabelle sites, daher ist sie keine dieses Programms</translation>
    </message>
    <message>
        <source>%1 POST variable of a site that is not there</source>
        <translation>%1 POST-Variable einer Seite, die nicht da ist</translation>
    </message>
    <message>
        <source>%1 POST variables of sites that are not there</source>
        <translation>%1 POST-Variablen von Seiten, die nicht da sind</translation>
    </message>
    <message>
        <source>its id is %1, and ids are 1 to 32767, each of them once</source>
        <translation>ihre ID ist %1, und IDs sind 1 bis 32767, jede einmal</translation>
    </message>
    <message>
        <source>interval of %1 min (taken as %2 min)</source>
        <translation>Abstand von %1 min (übernommen als %2 min)</translation>
    </message>
    <message>
        <source>the database is damaged (%1): have its own program repair it, or take an older copy of it</source>
        <translation>die Datenbank ist beschädigt (%1): Lassen Sie sie von ihrem eigenen Programm reparieren oder nehmen Sie eine ältere Kopie</translation>
    </message>
    <message>
        <source>of the %1 rows of the table %2 %3 can be read</source>
        <translation>von den %1 Zeilen der Tabelle %2 sind %3 lesbar</translation>
    </message>
    <message>
        <source>a row of the table %1</source>
        <translation>eine Zeile der Tabelle %1</translation>
    </message>
    <message>
        <source>its list of tables cannot be read</source>
        <translation>ihre Liste der Tabellen ist nicht lesbar</translation>
    </message>
    <message>
        <source>it is cut short, or its list of tables is not whole</source>
        <translation>sie ist abgeschnitten, oder ihre Liste der Tabellen ist unvollständig</translation>
    </message>
    <message>
        <source>The settings and %1 result of the log would be taken, too.</source>
        <translation>Auch die Einstellungen und %1 Ergebnis des Logs würden übernommen.</translation>
    </message>
    <message>
        <source>The settings and %1 results of the log would be taken, too.</source>
        <translation>Auch die Einstellungen und %1 Ergebnisse des Logs würden übernommen.</translation>
    </message>
    <message>
        <source>The settings and %1 result of the log are taken, too.</source>
        <translation>Auch die Einstellungen und %1 Ergebnis des Logs sind übernommen.</translation>
    </message>
    <message>
        <source>The settings and %1 results of the log are taken, too.</source>
        <translation>Auch die Einstellungen und %1 Ergebnisse des Logs sind übernommen.</translation>
    </message>
    <message>
        <source>Also taken are a list of addresses, one a line, the bookmarks of a browser (HTML), OPML, the lists of urlwatch, the list or the backup of changedetection.io, and a Jet database of the same tables. A site of theirs whose address is in the list is that site. What has no place in the list is named, site by site.</source>
        <translation>Auch übernommen werden eine Liste von Adressen, je Zeile eine, die Lesezeichen eines Browsers (HTML), OPML, die Listen von urlwatch, die Liste oder Sicherung von changedetection.io und eine Jet-Datenbank mit denselben Tabellen. Eine Seite daraus, deren Adresse in der Liste steht, ist diese Seite. Was in der Liste keinen Platz hat, wird Seite für Seite genannt.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>mails to %1, which is no mail address</source>
        <translation>Mails an %1, was keine E-Mail-Adresse ist</translation>
    </message>
    <message>
        <source>%1  %2</source>
        <translation>%1  %2</translation>
    </message>
    <message>
        <source>%1 or jet</source>
        <translation>%1 oder jet</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>%1: At Most 1 required but received %2</source>
        <translation>%1: höchstens einmal, nicht %2-mal</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2 (%3) or &quot;%4&quot; or &quot;%5&quot; or &quot;%6&quot;</source>
        <translation>eine ganze Zahl von %1 bis %2 (%3) oder &quot;%4&quot; oder &quot;%5&quot; oder &quot;%6&quot;</translation>
    </message>
    <message>
        <source>up to ten pauses of 1 to 300 seconds, as in &quot;5 s, 20 s&quot;</source>
        <translation>bis zu zehn Pausen von 1 bis 300 Sekunden, etwa &quot;5 s, 20 s&quot;</translation>
    </message>
    <message>
        <source>a number of changes and of minutes, as in &quot;5 in 30 min&quot;, or &quot;off&quot;</source>
        <translation>eine Zahl von Wechseln und von Minuten, etwa &quot;5 in 30 min&quot;, oder &quot;off&quot;</translation>
    </message>
    <message>
        <source>days and hours, as in &quot;Mon-Fri 22:00-6:00, Sat, Sun 0:00-24:00&quot; or &quot;daily 22-6&quot;, or &quot;none&quot;</source>
        <translation>Tage und Stunden (englisch), etwa &quot;Mon-Fri 22:00-6:00, Sat, Sun 0:00-24:00&quot; oder &quot;daily 22-6&quot;, oder &quot;none&quot;</translation>
    </message>
    <message>
        <source>times parted by semicolons, each perhaps with &quot;do not check&quot; or &quot;keep alerts&quot; and a note, as in &quot;2026-12-01 08:00 to 2026-12-01 12:00, do not check: new server&quot;, or &quot;none&quot;</source>
        <translation>Zeiten, durch Semikolons getrennt, jede vielleicht mit &quot;do not check&quot; oder &quot;keep alerts&quot; und einem Vermerk, etwa &quot;2026-12-01 08:00 to 2026-12-01 12:00, do not check: new server&quot;, oder &quot;none&quot;</translation>
    </message>
    <message>
        <source>&quot;until 2026-12-01 08:00&quot;, &quot;for good&quot; or &quot;no&quot;</source>
        <translation>&quot;until 2026-12-01 08:00&quot;, &quot;for good&quot; oder &quot;no&quot;</translation>
    </message>
    <message>
        <source>hosts parted by commas, as in &quot;example.org, 192.0.2.1:53&quot;, or &quot;none&quot;</source>
        <translation>Rechner, durch Kommas getrennt, etwa &quot;example.org, 192.0.2.1:53&quot;, oder &quot;none&quot;</translation>
    </message>
    <message>
        <source>This machine is offline since %1. Nothing is counted as down.</source>
        <translation>Dieser Rechner ist seit %1 offline. Nichts gilt als gestört.</translation>
    </message>
    <message>
        <source>Waiting: the sites that are due are in their quiet hours.</source>
        <translation>Warten: Die fälligen Seiten haben gerade Ruhezeit.</translation>
    </message>
    <message>
        <source>up (paused)</source>
        <translation>up (pausiert)</translation>
    </message>
    <message>
        <source>down (paused)</source>
        <translation>down (pausiert)</translation>
    </message>
    <message>
        <source>not a page (paused)</source>
        <translation>keine Seite (pausiert)</translation>
    </message>
    <message>
        <source>- (paused)</source>
        <translation>- (pausiert)</translation>
    </message>
    <message>
        <source>unconfirmed (%1 of %2)</source>
        <translation>unbestätigt (%1 von %2)</translation>
    </message>
    <message>
        <source>unconfirmed (%1 of %2) (paused)</source>
        <translation>unbestätigt (%1 von %2) (pausiert)</translation>
    </message>
    <message>
        <source>unsteady</source>
        <translation>unruhig</translation>
    </message>
    <message>
        <source>unsteady (paused)</source>
        <translation>unruhig (pausiert)</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>langsam</translation>
    </message>
    <message>
        <source>slow (paused)</source>
        <translation>langsam (pausiert)</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>unknown (paused)</source>
        <translation>unbekannt (pausiert)</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>since %1</source>
        <translation>seit %1</translation>
    </message>
    <message>
        <source>First error</source>
        <translation>Erster Fehler</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>for good</source>
        <translation>auf Dauer</translation>
    </message>
    <message>
        <source>Quiet now</source>
        <translation>Jetzt Ruhe</translation>
    </message>
    <message>
        <source>it is not checked</source>
        <translation>sie wird nicht geprüft</translation>
    </message>
    <message>
        <source>its alerts are kept</source>
        <translation>ihre Alarme werden aufgehoben</translation>
    </message>
    <message>
        <source>Unwatched</source>
        <translation>Unbeobachtet</translation>
    </message>
    <message>
        <source>no run is on</source>
        <translation>kein Lauf ist im Gange</translation>
    </message>
    <message>
        <source>never checked, and not taken on by the run that is on</source>
        <translation>nie geprüft, und der Lauf, der im Gange ist, nimmt sie nicht auf</translation>
    </message>
    <message>
        <source>not checked for two intervals</source>
        <translation>zwei Intervalle lang nicht geprüft</translation>
    </message>
    <message>
        <source>not checked at this time</source>
        <translation>zu dieser Zeit nicht geprüft</translation>
    </message>
    <message>
        <source>1 active site is not watched, since no run is on. Start one with: tarnwickctl run</source>
        <translation>1 aktive Seite wird nicht beobachtet, da kein Lauf im Gange ist. Starten Sie einen mit: tarnwickctl run</translation>
    </message>
    <message>
        <source>%1 active sites are not watched, since no run is on. Start one with: tarnwickctl run</source>
        <translation>%1 aktive Seiten werden nicht beobachtet, da kein Lauf im Gange ist. Starten Sie einen mit: tarnwickctl run</translation>
    </message>
    <message>
        <source>1 active site was never checked, and the run that is on does not take it on. Check it with: tarnwickctl check %1</source>
        <translation>1 aktive Seite wurde nie geprüft, und der Lauf, der im Gange ist, nimmt sie nicht auf. Prüfen Sie sie mit: tarnwickctl check %1</translation>
    </message>
    <message>
        <source>%1 active sites were never checked, and the run that is on does not take them on. Check the first with: tarnwickctl check %2</source>
        <translation>%1 aktive Seiten wurden nie geprüft, und der Lauf, der im Gange ist, nimmt sie nicht auf. Prüfen Sie die erste mit: tarnwickctl check %2</translation>
    </message>
    <message>
        <source>1 active site has not been checked for two of its intervals, though a run is on. See whether it is held up, or stop it and start it anew.</source>
        <translation>1 aktive Seite wurde zwei ihrer Intervalle lang nicht geprüft, obwohl ein Lauf im Gange ist. Sehen Sie nach, ob er aufgehalten wird, oder beenden Sie ihn und starten Sie ihn neu.</translation>
    </message>
    <message>
        <source>%1 active sites have not been checked for two of their intervals, though a run is on. See whether it is held up, or stop it and start it anew.</source>
        <translation>%1 aktive Seiten wurden zwei ihrer Intervalle lang nicht geprüft, obwohl ein Lauf im Gange ist. Sehen Sie nach, ob er aufgehalten wird, oder beenden Sie ihn und starten Sie ihn neu.</translation>
    </message>
    <message>
        <source>1 active site is not checked at this time, as its quiet hours or its maintenance say.</source>
        <translation>1 aktive Seite wird zu dieser Zeit nicht geprüft, so sagen es ihre Ruhezeiten oder ihre Wartung.</translation>
    </message>
    <message>
        <source>%1 active sites are not checked at this time, as their quiet hours or their maintenance say.</source>
        <translation>%1 aktive Seiten werden zu dieser Zeit nicht geprüft, so sagen es ihre Ruhezeiten oder ihre Wartung.</translation>
    </message>
    <message>
        <source>The alerts of %1 are paused %2.</source>
        <translation>Alarme in Pause %2: %1.</translation>
    </message>
    <message>
        <source>The alerts of %1 are not paused any more.</source>
        <translation>Alarme nicht mehr in Pause: %1.</translation>
    </message>
    <message>
        <source>sites %1</source>
        <translation>Seiten %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has gone by already. Name a moment that lies ahead.</source>
        <translation>&quot;%1&quot; ist schon vorbei. Nennen Sie einen Zeitpunkt, der noch kommt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no span. Write it as 90s, 30m, 2h or 1d, of ten years at most.</source>
        <translation>&quot;%1&quot; ist keine Zeitspanne. Schreiben Sie sie als 90s, 30m, 2h oder 1d, höchstens zehn Jahre.</translation>
    </message>
    <message>
        <source>&quot;YYYY-MM-DD HH:MM&quot;, HH:MM, &quot;today HH:MM&quot;, &quot;tomorrow HH:MM&quot; or tomorrow</source>
        <translation>&quot;JJJJ-MM-TT HH:MM&quot;, HH:MM, &quot;today HH:MM&quot;, &quot;tomorrow HH:MM&quot; oder tomorrow</translation>
    </message>
    <message>
        <source>Tell nothing of some sites, or of all, for a while</source>
        <translation>Von einigen Seiten oder von allen eine Weile nichts melden</translation>
    </message>
    <message>
        <source>The ids of the sites, as the verb sites lists them; all of them without one</source>
        <translation>Die IDs der Seiten, wie sites sie auflistet; ohne eine alle</translation>
    </message>
    <message>
        <source>So long: 30m, 2h, 1d; an hour without it</source>
        <translation>So lange: 30m, 2h, 1d; ohne Angabe eine Stunde</translation>
    </message>
    <message>
        <source>Until then: &quot;2026-12-01 08:00&quot;, 18:00, &quot;tomorrow 8:00&quot;</source>
        <translation>Bis dann: &quot;2026-12-01 08:00&quot;, 18:00, &quot;tomorrow 8:00&quot;</translation>
    </message>
    <message>
        <source>Until the verb resume ends it</source>
        <translation>Bis das Verb resume sie beendet</translation>
    </message>
    <message>
        <source>The sites are checked and recorded all the same. What is down then is told when the pause ends.</source>
        <translation>Die Seiten werden weiter geprüft. Was am Ende der Pause gestört ist, wird dann gemeldet.</translation>
    </message>
    <message>
        <source>all sites, for an hour</source>
        <translation>alle Seiten, für eine Stunde</translation>
    </message>
    <message>
        <source>two sites, for two days</source>
        <translation>zwei Seiten, für zwei Tage</translation>
    </message>
    <message>
        <source>the night is quiet</source>
        <translation>die Nacht ist ruhig</translation>
    </message>
    <message>
        <source>End the pause of some sites, or of all</source>
        <translation>Die Pause einiger Seiten oder aller beenden</translation>
    </message>
    <message>
        <source>Without a site all pauses end, those of single sites too. A site that is named is told of again also</source>
        <translation>Ohne eine Seite enden alle Pausen, auch die einzelner Seiten. Eine genannte Seite wird wieder</translation>
    </message>
    <message>
        <source>while all others are paused.</source>
        <translation>gemeldet, auch während alle anderen pausieren.</translation>
    </message>
    <message>
        <source>every pause that there is</source>
        <translation>jede Pause, die es gibt</translation>
    </message>
    <message>
        <source>that of one site</source>
        <translation>die einer Seite</translation>
    </message>
    <message>
        <source>This machine is offline. %1 of %2 sites were checked, and nothing is counted as down.</source>
        <translation>Dieser Rechner ist offline. %1 von %2 Seiten wurden geprüft, und nichts zählt als Ausfall.</translation>
    </message>
    <message>
        <source>the page differs from the baseline, and is too large to be compared here</source>
        <translation>die Seite weicht von der Basis ab und ist zu groß, um hier verglichen zu werden</translation>
    </message>
    <message>
        <source>a number of %1 digits</source>
        <translation>eine Zahl mit %1 Ziffern</translation>
    </message>
    <message>
        <source>a number of %1 to %2 digits</source>
        <translation>eine Zahl mit %1 bis %2 Ziffern</translation>
    </message>
    <message>
        <source>a hex number of %1 digits</source>
        <translation>eine Hexzahl mit %1 Ziffern</translation>
    </message>
    <message>
        <source>a hex number of %1 to %2 digits</source>
        <translation>eine Hexzahl mit %1 bis %2 Ziffern</translation>
    </message>
    <message>
        <source>a key of %1 characters</source>
        <translation>ein Schlüssel mit %1 Zeichen</translation>
    </message>
    <message>
        <source>a key of %1 to %2 characters</source>
        <translation>ein Schlüssel mit %1 bis %2 Zeichen</translation>
    </message>
    <message>
        <source>letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>a date</source>
        <translation>ein Datum</translation>
    </message>
    <message>
        <source>a time</source>
        <translation>eine Uhrzeit</translation>
    </message>
    <message>
        <source>a date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>one of %1 texts</source>
        <translation>einer von %1 Texten</translation>
    </message>
    <message>
        <source>anything</source>
        <translation>Beliebiges</translation>
    </message>
    <message>
        <source>Line %1: &quot;%2&quot; may be another date or time tomorrow, though it has not changed yet. Fetch again over a day.</source>
        <translation>Zeile %1: „%2“ kann morgen ein anderes Datum oder eine andere Uhrzeit sein, auch wenn es sich noch nicht geändert hat. Rufen Sie noch einmal über einen Tag verteilt ab.</translation>
    </message>
    <message>
        <source>Only %1 %% of the page would stay watched: too much of it changes.</source>
        <translation>Nur %1 %% der Seite blieben überwacht: zu viel von ihr ändert sich.</translation>
    </message>
    <message>
        <source>The copies have very different lengths: one of them may be another page, or an error.</source>
        <translation>Die Abrufe sind sehr verschieden lang: einer davon kann eine andere Seite oder ein Fehler sein.</translation>
    </message>
    <message>
        <source>Rule %1 (%2 %3 %4) matches nothing on the page.</source>
        <translation>Regel %1 (%2 %3 %4) trifft auf der Seite nichts.</translation>
    </message>
    <message>
        <source>The rule &quot;%1&quot; cannot be understood: %2</source>
        <translation>Die Regel „%1“ ist nicht zu verstehen: %2</translation>
    </message>
    <message>
        <source>A pointer begins with a slash, as /items/0/price.</source>
        <translation>Ein Zeiger beginnt mit einem Schrägstrich, etwa /items/0/price.</translation>
    </message>
    <message>
        <source>Write ~0 for ~ and ~1 for a slash within a name.</source>
        <translation>Schreiben Sie ~0 für ~ und ~1 für einen Schrägstrich in einem Namen.</translation>
    </message>
    <message>
        <source>Write numbers of lines from 1 on, as 3, 3-7 or 12-.</source>
        <translation>Schreiben Sie Nummern von Zeilen ab 1, etwa 3, 3-7 oder 12-.</translation>
    </message>
    <message>
        <source>Its last line comes before its first.</source>
        <translation>Ihre letzte Zeile steht vor der ersten.</translation>
    </message>
    <message>
        <source>Write an expression that selects elements, as //div[@id=&apos;main&apos;] or //p.</source>
        <translation>Schreiben Sie einen Ausdruck, der Elemente auswählt, etwa //div[@id=&apos;main&apos;] oder //p.</translation>
    </message>
    <message>
        <source>this Tarnwick was built without %1. Install %2 and build it again, or name lines.</source>
        <translation>dieses Tarnwick wurde ohne %1 gebaut. Installieren Sie %2 und bauen Sie es neu, oder nennen Sie Zeilen.</translation>
    </message>
    <message>
        <source>It is no selector from &quot;%1&quot; on. Write one such as div.news &gt; p or a[href^=&apos;/ad&apos;].</source>
        <translation>Ab „%1“ ist es kein Selektor. Schreiben Sie etwa #main, div.news &gt; p oder a[href^=&apos;/ad&apos;].</translation>
    </message>
    <message>
        <source>Line %1: only two different texts were seen there; what else it may say is a guess. Fetch again over a day.</source>
        <translation>Zeile %1: Dort wurden nur zwei verschiedene Texte gesehen; was dort sonst noch stehen kann, ist geraten. Rufen Sie die Seite über einen Tag hinweg erneut ab.</translation>
    </message>
    <message>
        <source>%1: nothing was learnt. %2</source>
        <translation>%1: nichts wurde gelernt. %2</translation>
    </message>
    <message>
        <source>%1: the page differs from the baseline also in line %2, so nothing is stored. Look at it with: tarnwickctl diff %3; if that is how the page shall be: tarnwickctl baseline %4 load, then learn again.</source>
        <translation>%1: Die Seite weicht auch in Zeile %2 von der Basis ab, deshalb ist nichts gespeichert. Sehen Sie es an mit: tarnwickctl diff %3; soll die Seite so sein: tarnwickctl baseline %4 load, dann lernen Sie noch einmal.</translation>
    </message>
    <message>
        <source>%1: the baseline was changed meanwhile. Learn again.</source>
        <translation>%1: die Basis wurde inzwischen geändert. Lernen Sie noch einmal.</translation>
    </message>
    <message>
        <source>Let this vary in site %1?</source>
        <translation>Darf das bei Site %1 abweichen?</translation>
    </message>
    <message>
        <source>Interrupted; nothing is learnt.</source>
        <translation>Unterbrochen; nichts ist gelernt.</translation>
    </message>
    <message>
        <source>%1: %2 of %3 fetches</source>
        <translation>%1: %2 von %3 Abrufen</translation>
    </message>
    <message>
        <source>%1: nothing has varied.</source>
        <translation>%1: nichts wich ab.</translation>
    </message>
    <message>
        <source>%1: %2 place varies; %3 %% of the page stays watched.</source>
        <translation>%1: %2 Stelle weicht ab; %3 %% der Seite bleiben überwacht.</translation>
    </message>
    <message>
        <source>%1: %2 places vary; %3 %% of the page stays watched.</source>
        <translation>%1: %2 Stellen weichen ab; %3 %% der Seite bleiben überwacht.</translation>
    </message>
    <message>
        <source>The rules of site %1 are stored.</source>
        <translation>Die Regeln von Site %1 sind gespeichert.</translation>
    </message>
    <message>
        <source>RULE</source>
        <translation>REGEL</translation>
    </message>
    <message>
        <source>PLACE</source>
        <translation>STELLE</translation>
    </message>
    <message>
        <source>WHAT MAY STAND THERE</source>
        <translation>WAS DORT STEHEN DARF</translation>
    </message>
    <message>
        <source>IN THE BASELINE</source>
        <translation>IN DER BASIS</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Site %1 has no rules: its page is compared byte for byte.</source>
        <translation>Site %1 hat keine Regeln: ihre Seite wird Byte für Byte verglichen.</translation>
    </message>
    <message>
        <source>Of the places that may vary %1 is not in the baseline any more.</source>
        <translation>Von den Stellen, die abweichen dürfen, gibt es %1 in der Basis nicht mehr.</translation>
    </message>
    <message>
        <source>Of the places that may vary %1 are not in the baseline any more.</source>
        <translation>Von den Stellen, die abweichen dürfen, gibt es %1 in der Basis nicht mehr.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of hole: give one of digits, hex, base64, letters, date, list, text, anything.</source>
        <translation>„%1“ ist keine Art von Lücke: nennen Sie digits, hex, base64, letters, date, list, text oder anything.</translation>
    </message>
    <message>
        <source>The text &quot;%1&quot; stands nowhere in the baseline. Give the text that may vary as it stands there.</source>
        <translation>Der Text „%1“ steht nirgends in der Basis. Geben Sie den Text, der abweichen darf, so an, wie er dort steht.</translation>
    </message>
    <message>
        <source>The text &quot;%1&quot; stands more than once in the baseline. Select the place in the window, or learn it.</source>
        <translation>Der Text „%1“ steht mehrmals in der Basis. Wählen Sie die Stelle im Fenster aus, oder lernen Sie sie.</translation>
    </message>
    <message>
        <source>This place touches another one that may vary, in %1. Remove that first: tarnwickctl rules %2</source>
        <translation>Diese Stelle berührt eine andere, die abweichen darf, in %1. Entfernen Sie zuerst diese: tarnwickctl rules %2</translation>
    </message>
    <message>
        <source>A rule is one of leave-out, compare-only and hole, then regex, css, xpath, json or lines, then the rule in quotes; see: tarnwickctl help rules</source>
        <translation>Eine Regel ist leave-out, compare-only oder hole, dann regex, css, xpath, json oder lines, dann die Regel in Anführungszeichen; siehe: tarnwickctl help rules</translation>
    </message>
    <message>
        <source>A rule is one line: write a line end in a regular expression as its escape.</source>
        <translation>Eine Regel ist eine Zeile: schreiben Sie ein Zeilenende im regulären Ausdruck als Ersatzzeichen.</translation>
    </message>
    <message>
        <source>Say what to add, for instance: tarnwickctl rules %1 add leave-out css &quot;div.clock&quot;</source>
        <translation>Sagen Sie, was dazukommt, zum Beispiel: tarnwickctl rules %1 add leave-out css &quot;div.clock&quot;</translation>
    </message>
    <message>
        <source>Name the rule by its number, or all of them: tarnwickctl rules %1 remove 1|all</source>
        <translation>Nennen Sie die Regel bei ihrer Nummer, oder alle: tarnwickctl rules %1 remove 1|all</translation>
    </message>
    <message>
        <source>There is no page to try the rules on. Give a file, or fetch the page: tarnwickctl check %1</source>
        <translation>Es gibt keine Seite, an der die Regeln versucht werden. Nennen Sie eine Datei, oder rufen Sie die Seite ab: tarnwickctl check %1</translation>
    </message>
    <message>
        <source>%1: %2 match</source>
        <translation>%1: %2 Treffer</translation>
    </message>
    <message>
        <source>%1: %2 matches</source>
        <translation>%1: %2 Treffer</translation>
    </message>
    <message>
        <source>By these rules the page is the same as the baseline.</source>
        <translation>Nach diesen Regeln gleicht die Seite der Basis.</translation>
    </message>
    <message>
        <source>By these rules the page differs from the baseline, first in line %1.</source>
        <translation>Nach diesen Regeln weicht die Seite von der Basis ab, zuerst in Zeile %1.</translation>
    </message>
    <message>
        <source>The page could not be fetched. %1</source>
        <translation>Die Seite war nicht abzurufen. %1</translation>
    </message>
    <message>
        <source>The server answered with an error page (%1).</source>
        <translation>Der Server antwortete mit einer Fehlerseite (%1).</translation>
    </message>
    <message>
        <source>The page is empty.</source>
        <translation>Die Seite ist leer.</translation>
    </message>
    <message>
        <source>The page is an error page of the server, and was not taken as the baseline.</source>
        <translation>Die Seite ist eine Fehlerseite des Servers und wurde nicht zur Basis.</translation>
    </message>
    <message>
        <source>The page has less than half the length of the one before, and was not taken as the baseline.</source>
        <translation>Die Seite ist nicht halb so lang wie die davor und wurde nicht zur Basis.</translation>
    </message>
    <message>
        <source>the rule %1 is none: give it as an export writes it, for instance &quot;leave out css div.clock&quot;</source>
        <translation>die Regel %1 ist keine: geben Sie sie so an, wie eine Ausgabe sie schreibt, zum Beispiel „leave out css div.clock“</translation>
    </message>
    <message>
        <source>rules is no array: give [&quot;RULE&quot;, ...]</source>
        <translation>rules ist kein Feld: geben Sie [&quot;RULE&quot;, ...]</translation>
    </message>
    <message>
        <source>Learn from several fetches what always changes on a page, and let it vary</source>
        <translation>Aus mehreren Abrufen lernen, was sich auf einer Seite immer ändert, und es zulassen</translation>
    </message>
    <message>
        <source>The ids, as the verb sites lists them</source>
        <translation>Die Nummern, wie das Verb sites sie aufzählt</translation>
    </message>
    <message>
        <source>How many times each page is fetched, from 2 to 50; 5 without this</source>
        <translation>Wie oft jede Seite abgerufen wird, von 2 bis 50; ohne dies 5</translation>
    </message>
    <message>
        <source>Spread the fetches over this time, as 30m, 2h or 1d; at once without this</source>
        <translation>Die Abrufe über diese Zeit verteilen, etwa 30m, 2h oder 1d; ohne dies sofort</translation>
    </message>
    <message>
        <source>Store what was learnt without asking</source>
        <translation>Das Gelernte ohne Frage speichern</translation>
    </message>
    <message>
        <source>Numbers, keys, dates and words that vary become places where anything of their kind may stand; all around them</source>
        <translation>Zahlen, Schlüssel, Daten und Wörter, die abweichen, werden Stellen für alles ihrer Art; alles rundherum</translation>
    </message>
    <message>
        <source>stays compared byte for byte. With --json nothing is stored unless --yes is given.</source>
        <translation>wird weiter Byte für Byte verglichen. Mit --json wird nur mit --yes gespeichert.</translation>
    </message>
    <message>
        <source>fetch the page of site 3 five times, and ask</source>
        <translation>die Seite von Site 3 fünfmal abrufen und fragen</translation>
    </message>
    <message>
        <source>the same over a day, which finds what changes with the date</source>
        <translation>dasselbe über einen Tag, was auch Daten findet</translation>
    </message>
    <message>
        <source>what may vary in it</source>
        <translation>was darin abweichen darf</translation>
    </message>
    <message>
        <source>Show or change what of a site&apos;s page does not count</source>
        <translation>Zeigen oder ändern, was von der Seite einer Site nicht zählt</translation>
    </message>
    <message>
        <source>list (default), add, remove, test</source>
        <translation>list (ohne Angabe), add, remove, test</translation>
    </message>
    <message>
        <source>for add: leave-out|compare-only LANGUAGE RULE, or hole CLASS TEXT; for remove: a number or all; for test: a FILE, without one the latest page</source>
        <translation>für add: leave-out|compare-only SPRACHE REGEL, oder hole ART TEXT; für remove: eine Nummer oder all; für test: eine DATEI, sonst die neueste Seite</translation>
    </message>
    <message>
        <source>Languages: regex (RE2; its first group, where it has one), css, xpath, json (a pointer, RFC 6901), lines (3-7).</source>
        <translation>Sprachen: regex (RE2; deren erste Gruppe, falls es eine gibt), css, xpath, json (RFC 6901), lines (3-7).</translation>
    </message>
    <message>
        <source>Classes of holes: digits, hex, base64, letters, date, list, text, anything. TEXT is what the baseline has there.</source>
        <translation>Arten: digits, hex, base64, letters, date, list, text, anything. TEXT ist, was die Basis dort hat.</translation>
    </message>
    <message>
        <source>A site without rules is compared byte for byte.</source>
        <translation>Eine Site ohne Regeln wird Byte für Byte verglichen.</translation>
    </message>
    <message>
        <source>what does not count on the page of site 3</source>
        <translation>was auf der Seite von Site 3 nicht zählt</translation>
    </message>
    <message>
        <source>whole elements</source>
        <translation>ganze Elemente</translation>
    </message>
    <message>
        <source>nothing else</source>
        <translation>nichts sonst</translation>
    </message>
    <message>
        <source>this number may be another one</source>
        <translation>diese Zahl darf eine andere sein</translation>
    </message>
    <message>
        <source>what the rules do to a page</source>
        <translation>was die Regeln mit einer Seite machen</translation>
    </message>
    <message>
        <source>as the list numbers them</source>
        <translation>wie die Liste sie zählt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no date or time whose form is known.</source>
        <translation>„%1“ ist kein Datum und keine Uhrzeit in einer bekannten Form.</translation>
    </message>
    <message>
        <source>there is no baseline yet</source>
        <translation>noch gibt es keine Basis</translation>
    </message>
    <message>
        <source>There is no desktop here that could show a notice.</source>
        <translation>Hier ist kein Desktop, der eine Mitteilung zeigen könnte.</translation>
    </message>
    <message>
        <source>So much of the page changes that its places cannot be told apart: all from the first to the last of them is one.</source>
        <translation>An der Seite ändert sich so viel, dass sich die Stellen nicht auseinanderhalten lassen: alles von der ersten bis zur letzten ist eine.</translation>
    </message>
    <message>
        <source>The pages are too large to learn from.</source>
        <translation>Die Seiten sind zu groß, um aus ihnen zu lernen.</translation>
    </message>
    <message>
        <source>The program could not be started. Is its path right, and may it be run?</source>
        <translation>Das Programm konnte nicht gestartet werden. Stimmt sein Pfad, und darf es ausgeführt werden?</translation>
    </message>
    <message>
        <source>started, still running</source>
        <translation>gestartet, läuft noch</translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>Beendet mit Status %1</translation>
    </message>
    <message>
        <source>exit status %1: %2</source>
        <translation>Beendet mit Status %1: %2</translation>
    </message>
    <message>
        <source>Nothing was answered within %1 seconds.</source>
        <translation>Innerhalb von %1 Sekunden kam keine Antwort.</translation>
    </message>
    <message>
        <source>The channel has no password or token. Give it one in its settings.</source>
        <translation>Der Kanal hat kein Passwort und kein Token. Geben Sie ihm eines in seinen Einstellungen.</translation>
    </message>
    <message>
        <source>The token command gave no token: %1</source>
        <translation>Der Token-Befehl lieferte kein Token: %1</translation>
    </message>
    <message>
        <source>Show what changed</source>
        <translation>Zeigen, was sich geändert hat</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Mute for an hour</source>
        <translation>Eine Stunde stumm</translation>
    </message>
    <message>
        <source>The sound cannot be played. Is it a .wav file that is there?</source>
        <translation>Der Ton kann nicht abgespielt werden. Ist es eine .wav-Datei, die vorhanden ist?</translation>
    </message>
    <message>
        <source>Nobody could tell it within a day.</source>
        <translation>Innerhalb eines Tages konnte es niemand melden.</translation>
    </message>
    <message>
        <source>This is a test of the channel %1. Alerts that look like this one will follow.</source>
        <translation>Dies ist ein Test des Kanals %1. Es folgen Alarme, die so aussehen wie dieser.</translation>
    </message>
    <message>
        <source>A channel needs a name of one line without commas, as in &quot;office mail&quot;.</source>
        <translation>Ein Kanal braucht einen Namen aus einer Zeile ohne Kommas, etwa „office mail“.</translation>
    </message>
    <message>
        <source>The channel %1 lacks &quot;%2&quot;: %3. It takes %4.</source>
        <translation>Dem Kanal %1 fehlt „%2“: %3. Möglich ist: %4.</translation>
    </message>
    <message>
        <source>There is a channel &quot;%1&quot; already. Give this one another name.</source>
        <translation>Es gibt schon einen Kanal „%1“. Geben Sie diesem einen anderen Namen.</translation>
    </message>
    <message>
        <source>There is no channel of the kind &quot;%1&quot;. The kinds are: %2.</source>
        <translation>Es gibt keinen Kanal der Art „%1“. Die Arten sind: %2.</translation>
    </message>
    <message>
        <source>A channel of the kind %1 has no &quot;%2&quot;. It has: %3.</source>
        <translation>Ein Kanal der Art %1 hat kein „%2“. Er hat: %3.</translation>
    </message>
    <message>
        <source>The name of the mail server &quot;%1&quot; is not valid.</source>
        <translation>Der Name des Mailservers „%1“ ist nicht gültig.</translation>
    </message>
    <message>
        <source>The user name or the password for the mail server holds a character that cannot be sent.</source>
        <translation>Der Benutzername oder das Passwort für den Mailserver enthält ein Zeichen, das nicht gesendet werden kann.</translation>
    </message>
    <message>
        <source>The mail has no recipient.</source>
        <translation>Die Mail hat keinen Empfänger.</translation>
    </message>
    <message>
        <source>The mail address &quot;%1&quot; is not valid.</source>
        <translation>Die Mailadresse „%1“ ist nicht gültig.</translation>
    </message>
    <message>
        <source>The header &quot;%1&quot; cannot be sent with a mail.</source>
        <translation>Die Kopfzeile „%1“ kann nicht mit einer Mail gesendet werden.</translation>
    </message>
    <message>
        <source>The mail server %1 takes no mail addresses with other letters than those of ASCII.</source>
        <translation>Der Mailserver %1 nimmt keine Mailadressen mit anderen Buchstaben als denen von ASCII.</translation>
    </message>
    <message>
        <source>The mail server %1 has not taken the mail within %2; the last step was %3.</source>
        <translation>Der Mailserver %1 hat die Mail nicht innerhalb von %2 angenommen; der letzte Schritt war %3.</translation>
    </message>
    <message>
        <source>The mail server %1 offers no encryption, and it is required.</source>
        <translation>Der Mailserver %1 bietet keine Verschlüsselung an, und sie ist verlangt.</translation>
    </message>
    <message>
        <source>The mail server %1 offers none of the ways to log in that are known here.</source>
        <translation>Der Mailserver %1 bietet keine der Arten der Anmeldung an, die hier bekannt sind.</translation>
    </message>
    <message>
        <source>The mail server %1 broke the connection off; the last step was %2.</source>
        <translation>Der Mailserver %1 hat die Verbindung abgebrochen; der letzte Schritt war %2.</translation>
    </message>
    <message>
        <source>The mail server %1 did not answer in the language of mail.</source>
        <translation>Der Mailserver %1 antwortete nicht in der Sprache der Mail.</translation>
    </message>
    <message>
        <source>There is not enough memory for the mail.</source>
        <translation>Für die Mail ist nicht genug Speicher da.</translation>
    </message>
    <message>
        <source>%1 (the server offers no log-in)</source>
        <translation>%1 (der Server bietet keine Anmeldung an)</translation>
    </message>
    <message>
        <source>The desktop has no service that shows notices. Install one, or use a channel of another kind.</source>
        <translation>Der Desktop hat keinen Dienst, der Mitteilungen zeigt. Installieren Sie einen, oder nehmen Sie einen Kanal anderer Art.</translation>
    </message>
    <message>
        <source>The desktop did not show the notice: %1</source>
        <translation>Der Desktop hat die Mitteilung nicht gezeigt: %1</translation>
    </message>
    <message>
        <source>A password in %1 is damaged. Enter it again.</source>
        <translation>Ein Passwort in %1 ist beschädigt. Geben Sie es noch einmal ein.</translation>
    </message>
    <message>
        <source>The key ring of the desktop did not give the password out: %1. Unlock it, or enter the password again.</source>
        <translation>Der Schlüsselbund des Desktops hat das Passwort nicht herausgegeben: %1. Entsperren Sie ihn, oder geben Sie das Passwort noch einmal ein.</translation>
    </message>
    <message>
        <source>The key ring of the desktop did not take the password: %1.</source>
        <translation>Der Schlüsselbund des Desktops hat das Passwort nicht angenommen: %1.</translation>
    </message>
    <message>
        <source>The password is kept in the key ring of the desktop, which only the window reaches. Enter it here once more, and it is kept in a file of the program folder that only you can read.</source>
        <translation>Das Passwort liegt im Schlüsselbund des Desktops, den nur das Fenster erreicht. Geben Sie es hier noch einmal ein, dann liegt es in einer Datei des Programmordners, die nur Sie lesen können.</translation>
    </message>
    <message>
        <source>%1: line %2 differs as well, and does not look like what always changes: it stays watched.</source>
        <translation>%1: Auch Zeile %2 weicht ab und sieht nicht nach etwas aus, das sich immer ändert: sie bleibt überwacht.</translation>
    </message>
    <message>
        <source>%1: line %2 differs, and nothing of it looks like what always changes.</source>
        <translation>%1: Zeile %2 weicht ab, und nichts davon sieht nach etwas aus, das sich immer ändert.</translation>
    </message>
    <message>
        <source>There is no baseline yet, or the latest check brought no page.</source>
        <translation>Es gibt noch keine Basis, oder die letzte Prüfung brachte keine Seite.</translation>
    </message>
    <message>
        <source>Nothing is fetched with --from-last: leave out --fetches and --over.</source>
        <translation>Mit --from-last wird nichts abgerufen: --fetches und --over weglassen.</translation>
    </message>
    <message>
        <source>Fetch nothing: propose what of the latest page&apos;s difference looks like a number, a key, a date or a time</source>
        <translation>Nichts abrufen: vorschlagen, was vom Unterschied der letzten Seite nach einer Zahl, einem Schlüssel, einem Datum oder einer Uhrzeit aussieht</translation>
    </message>
    <message>
        <source>the page differs by what is no change: let that vary</source>
        <translation>die Seite weicht durch etwas ab, das keine Änderung ist: das darf sich ändern</translation>
    </message>
    <message>
        <source>line %1: expected %2, found %3; it looks like %4</source>
        <translation>Zeile %1: erwartet %2, gefunden %3; das sieht aus wie %4</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a key</source>
        <translation>ein Schlüssel</translation>
    </message>
    <message>
        <source>Which channel is meant? Name it, as in: tarnwickctl channel %1 office. They are listed by: tarnwickctl channel</source>
        <translation>Welcher Kanal ist gemeint? Nennen Sie ihn, wie in: tarnwickctl channel %1 office. Sie werden aufgelistet mit: tarnwickctl channel</translation>
    </message>
    <message>
        <source>There is no channel &quot;%1&quot;. They are listed by: tarnwickctl channel</source>
        <translation>Es gibt keinen Kanal „%1“. Sie werden aufgelistet mit: tarnwickctl channel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one word too many. A name of several words stands between quotes.</source>
        <translation>„%1“ ist ein Wort zu viel. Ein Name aus mehreren Wörtern steht zwischen Anführungszeichen.</translation>
    </message>
    <message>
        <source>There is no channel, so that alerts leave as the settings say. Add one, for instance: tarnwickctl channel add phone --webhook https://ntfy.sh/YOUR-TOPIC --preset ntfy</source>
        <translation>Es gibt keinen Kanal; Alarme gehen hinaus, wie es die Einstellungen sagen. Legen Sie einen an, zum Beispiel: tarnwickctl channel add phone --webhook https://ntfy.sh/YOUR-TOPIC --preset ntfy</translation>
    </message>
    <message>
        <source>%1 of the channel %2 (nothing is shown):</source>
        <translation>%1 des Kanals %2 (nichts wird angezeigt):</translation>
    </message>
    <message>
        <source>Token</source>
        <translation>Token</translation>
    </message>
    <message>
        <source>The key ring has not answered.</source>
        <translation>Der Schlüsselbund hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>The channel %1 is stored, but not its password or token: %2</source>
        <translation>Der Kanal %1 ist gespeichert, sein Passwort oder Token aber nicht: %2</translation>
    </message>
    <message>
        <source>A channel of the kind %1 has no password or token.</source>
        <translation>Ein Kanal der Art %1 hat kein Passwort oder Token.</translation>
    </message>
    <message>
        <source>The channel %1 is stored.</source>
        <translation>Der Kanal %1 ist gespeichert.</translation>
    </message>
    <message>
        <source>The channel %1 has no password or token yet. Give it: tarnwickctl channel set &quot;%2&quot; --password-file FILE</source>
        <translation>Der Kanal %1 hat noch kein Passwort oder Token. Geben Sie es an: tarnwickctl channel set &quot;%2&quot; --password-file DATEI</translation>
    </message>
    <message>
        <source>A channel is of one kind: leave out %1 or %2.</source>
        <translation>Ein Kanal ist von einer Art: Lassen Sie %1 oder %2 weg.</translation>
    </message>
    <message>
        <source>How is it to tell? Add --mail, --webhook, --notice, --program or --sound.</source>
        <translation>Wie soll er melden? Ergänzen Sie --mail, --webhook, --notice, --program oder --sound.</translation>
    </message>
    <message>
        <source>A preset is one of a web hook: leave --preset out, or give --webhook.</source>
        <translation>Eine Vorlage ist die eines Webhooks: Lassen Sie --preset weg, oder geben Sie --webhook an.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is on or off, and &quot;%2&quot; is neither.</source>
        <translation>„%1“ ist on oder off, und „%2“ ist keins von beiden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no &quot;=&quot;: what is to be set stands as FIELD=VALUE, and FIELD= takes it away.</source>
        <translation>„%1“ hat kein „=“: Was gesetzt werden soll, steht als FELD=WERT, und FELD= nimmt es weg.</translation>
    </message>
    <message>
        <source>What is to be changed? For instance: tarnwickctl channel set &quot;%1&quot; default=off</source>
        <translation>Was soll geändert werden? Zum Beispiel: tarnwickctl channel set &quot;%1&quot; default=off</translation>
    </message>
    <message>
        <source>The channel %1 is on.</source>
        <translation>Der Kanal %1 ist eingeschaltet.</translation>
    </message>
    <message>
        <source>The channel %1 is off: its alerts wait.</source>
        <translation>Der Kanal %1 ist ausgeschaltet: Seine Alarme warten.</translation>
    </message>
    <message>
        <source>Remove the channel %1 with the alerts that wait for it (%2)?</source>
        <translation>Den Kanal %1 mit den Alarmen, die auf ihn warten (%2), entfernen?</translation>
    </message>
    <message>
        <source>The channel %1 is removed.</source>
        <translation>Der Kanal %1 ist entfernt.</translation>
    </message>
    <message>
        <source>The test was interrupted.</source>
        <translation>Der Test wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The test message is sent: %1</source>
        <translation>Die Testnachricht ist gesendet: %1</translation>
    </message>
    <message>
        <source>The test message is not sent: %1</source>
        <translation>Die Testnachricht ist nicht gesendet: %1</translation>
    </message>
    <message>
        <source>%1; may be given again</source>
        <translation>%1; kann wiederholt werden</translation>
    </message>
    <message>
        <source>Fields, for set, and what they take:</source>
        <translation>Felder, für set, und was sie nehmen:</translation>
    </message>
    <message>
        <source>Takes %1. It has to be set.</source>
        <translation>Nimmt %1. Es muss gesetzt sein.</translation>
    </message>
    <message>
        <source>list (default), add, set, remove, on, off, test, presets</source>
        <translation>list (Vorgabe), add, set, remove, on, off, test, presets</translation>
    </message>
    <message>
        <source>The channel; for set, behind it FIELD=VALUE, or FIELD= to take it away</source>
        <translation>Der Kanal; bei set dahinter FELD=WERT, oder FELD=, um es wegzunehmen</translation>
    </message>
    <message>
        <source>How the service wants to be told, as presets lists it</source>
        <translation>Wie der Dienst es haben will, wie presets es auflistet</translation>
    </message>
    <message>
        <source>Whether it tells of all sites that name no channels of their own: on or off</source>
        <translation>Ob er von allen Seiten meldet, die keine eigenen Kanäle nennen: on oder off</translation>
    </message>
    <message>
        <source>The password or token, in a file of one line; - is standard input</source>
        <translation>Das Passwort oder Token, in einer Datei von einer Zeile; - ist die Standardeingabe</translation>
    </message>
    <message>
        <source>Do not ask before alerts that wait are removed</source>
        <translation>Nicht fragen, bevor wartende Alarme entfernt werden</translation>
    </message>
    <message>
        <source>Show or change the channels by which alerts leave, and try them</source>
        <translation>Die Kanäle, über die Alarme hinausgehen, anzeigen, ändern und ausprobieren</translation>
    </message>
    <message>
        <source>A password or token never stands on the command line: it is read from a file, or asked for, and kept in a file of the program folder that only you can read.</source>
        <translation>Ein Passwort oder Token steht nie auf der Befehlszeile: Es wird aus einer Datei gelesen oder erfragt und in einer Datei des Programmordners aufbewahrt, die nur Sie lesen können.</translation>
    </message>
    <message>
        <source>Exit status of test: 0 when the message was sent, 1 when it was not.</source>
        <translation>Exit-Status von test: 0, wenn die Nachricht gesendet wurde, sonst 1.</translation>
    </message>
    <message>
        <source>mail through a provider; the password is asked for</source>
        <translation>Mail über einen Anbieter; das Passwort wird erfragt</translation>
    </message>
    <message>
        <source>a web hook</source>
        <translation>ein Webhook</translation>
    </message>
    <message>
        <source>send a message, and see the answer</source>
        <translation>eine Nachricht senden und die Antwort sehen</translation>
    </message>
    <message>
        <source>change it</source>
        <translation>ihn ändern</translation>
    </message>
    <message>
        <source>the channels of one site</source>
        <translation>die Kanäle einer Seite</translation>
    </message>
    <message>
        <source>1 alert is waiting: %1</source>
        <translation>1 Alarm wartet: %1</translation>
    </message>
    <message>
        <source>%1 alerts are waiting: %2</source>
        <translation>%1 Alarme warten: %2</translation>
    </message>
    <message>
        <source>1 alert was given up: %1</source>
        <translation>1 Alarm wurde aufgegeben: %1</translation>
    </message>
    <message>
        <source>%1 alerts were given up: %2</source>
        <translation>%1 Alarme wurden aufgegeben: %2</translation>
    </message>
    <message>
        <source>All alerts are delivered again.</source>
        <translation>Alle Alarme sind wieder zugestellt.</translation>
    </message>
    <message>
        <source>There is no such alert in the outbox.</source>
        <translation>Einen solchen Alarm gibt es im Postausgang nicht.</translation>
    </message>
    <message>
        <source>No alert %1 waits or was given up. They are listed by: tarnwickctl outbox</source>
        <translation>Kein Alarm %1 wartet oder wurde aufgegeben. Sie werden aufgelistet mit: tarnwickctl outbox</translation>
    </message>
    <message>
        <source>No alert is waiting.</source>
        <translation>Kein Alarm wartet.</translation>
    </message>
    <message>
        <source>Not delivered yet: %1.</source>
        <translation>Noch nicht zugestellt: %1.</translation>
    </message>
    <message>
        <source>1 alert</source>
        <translation>1 Alarm</translation>
    </message>
    <message>
        <source>%1 alerts</source>
        <translation>%1 Alarme</translation>
    </message>
    <message>
        <source>Drop %1 for good? Nobody will be told of what they say.</source>
        <translation>%1 endgültig verwerfen? Niemand erfährt dann, was darin steht.</translation>
    </message>
    <message>
        <source>Dropped: %1.</source>
        <translation>Verworfen: %1.</translation>
    </message>
    <message>
        <source>Show the alerts on their way through channels, have them tried now, or drop them</source>
        <translation>Die Alarme auf ihrem Weg durch die Kanäle anzeigen, jetzt versuchen lassen oder verwerfen</translation>
    </message>
    <message>
        <source>list (default), retry, drop</source>
        <translation>list (Vorgabe), retry, drop</translation>
    </message>
    <message>
        <source>The alerts; all of them without one</source>
        <translation>Die Alarme; ohne Angabe alle</translation>
    </message>
    <message>
        <source>List those that wait</source>
        <translation>Die wartenden auflisten</translation>
    </message>
    <message>
        <source>List those that have arrived</source>
        <translation>Die angekommenen auflisten</translation>
    </message>
    <message>
        <source>List those that were given up</source>
        <translation>Die aufgegebenen auflisten</translation>
    </message>
    <message>
        <source>Do not ask before alerts are dropped</source>
        <translation>Nicht fragen, bevor Alarme verworfen werden</translation>
    </message>
    <message>
        <source>An alert that cannot be delivered is tried again after 1, 5, 15 and then every 60 minutes, for a day, by a run or a window that is on, and by each check. The answer is that of who was asked.</source>
        <translation>Ein Alarm, der nicht zugestellt werden kann, wird nach 1, 5, 15 und dann alle 60 Minuten wieder versucht, einen Tag lang, von einem Lauf oder einem offenen Fenster und von jeder Prüfung. Die Antwort ist die dessen, der gefragt wurde.</translation>
    </message>
    <message>
        <source>Exit status of retry: 0 when all were delivered, 1 when some were not.</source>
        <translation>Exit-Status von retry: 0, wenn alle zugestellt wurden, sonst 1.</translation>
    </message>
    <message>
        <source>what has become of the alerts</source>
        <translation>was aus den Alarmen geworden ist</translation>
    </message>
    <message>
        <source>try all that wait or were given up, now</source>
        <translation>alle, die warten oder aufgegeben wurden, jetzt versuchen</translation>
    </message>
    <message>
        <source>have one not told any more</source>
        <translation>einen nicht mehr melden</translation>
    </message>
    <message>
        <source>MADE</source>
        <translation>ENTSTANDEN</translation>
    </message>
    <message>
        <source>CHANNEL</source>
        <translation>KANAL</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>SEITEN</translation>
    </message>
    <message>
        <source>FOR</source>
        <translation>WOFÜR</translation>
    </message>
    <message>
        <source>TRIES</source>
        <translation>VERSUCHE</translation>
    </message>
    <message>
        <source>NEXT TRY</source>
        <translation>NÄCHSTER</translation>
    </message>
    <message>
        <source>ANSWER</source>
        <translation>ANTWORT</translation>
    </message>
    <message>
        <source>EVENT</source>
        <translation>EREIGNIS</translation>
    </message>
    <message>
        <source>KIND</source>
        <translation>ART</translation>
    </message>
    <message>
        <source>TO</source>
        <translation>AN</translation>
    </message>
    <message>
        <source>behind a backslash stands n, for a line end, or a second backslash</source>
        <translation>hinter einem Backslash steht n, für ein Zeilenende, oder ein zweiter Backslash</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no &quot;=&quot; between a name and a value</source>
        <translation>„%1“ hat kein „=“ zwischen Name und Wert</translation>
    </message>
    <message>
        <source>there is no address: give an example of one, as in address = https://example.org/</source>
        <translation>es gibt keine Adresse: Geben Sie ein Beispiel, wie in address = https://example.org/</translation>
    </message>
    <message>
        <source>%1 is for people: give it one line of text</source>
        <translation>%1 ist für Menschen: Geben Sie eine Zeile Text an</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 ist zweimal angegeben</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is too long for a preset of a web hook.</source>
        <translation>Die Datei „%1“ ist zu lang für die Vorlage eines Webhooks.</translation>
    </message>
    <message>
        <source>There is no preset &quot;%1&quot;. The presets are: %2.</source>
        <translation>Es gibt keine Vorlage „%1“. Die Vorlagen sind: %2.</translation>
    </message>
    <message>
        <source>The preset %1, line %2: %3.</source>
        <translation>Die Vorlage %1, Zeile %2: %3.</translation>
    </message>
    <message>
        <source>there is no member %1 beside the sites: the members are &quot;tarnwick&quot;, &quot;options&quot;, &quot;channels&quot; and &quot;sites&quot;</source>
        <translation>Neben den Seiten gibt es kein Element %1: Die Elemente sind „tarnwick“, „options“, „channels“ und „sites“</translation>
    </message>
    <message>
        <source>A site whose id is in the list is changed, in the fields that the file has; one with another id is added under it, and one without an id is added as a new one. A channel takes the place of one that has its name. All of the file is taken, or nothing: each fault is told with its line.</source>
        <translation>Eine Seite, deren ID in der Liste steht, wird geändert, in den Feldern, die die Datei hat; eine mit anderer ID wird unter dieser hinzugefügt, eine ohne ID als neue. Ein Kanal tritt an die Stelle dessen, der seinen Namen hat. Die Datei wird ganz übernommen oder gar nicht: Jeder Fehler wird mit seiner Zeile gemeldet.</translation>
    </message>
    <message>
        <source>The password or token of the channel %1 is not in the file: %2</source>
        <translation>Das Passwort oder Token des Kanals %1 steht nicht in der Datei: %2</translation>
    </message>
    <message>
        <source>A CSV file has no place for channels. They are in one whose name ends in .json.</source>
        <translation>In einer CSV-Datei ist für Kanäle kein Platz. Sie stehen in einer, deren Name auf .json endet.</translation>
    </message>
    <message>
        <source>The file holds the passwords and tokens of the channels in clear. Keep it where nobody else can read it.</source>
        <translation>Die Datei enthält die Passwörter und Tokens der Kanäle im Klartext. Bewahren Sie sie dort auf, wo niemand sonst sie lesen kann.</translation>
    </message>
    <message>
        <source>Write the passwords and tokens of the channels as well, in clear</source>
        <translation>Auch die Passwörter und Tokens der Kanäle schreiben, im Klartext</translation>
    </message>
    <message>
        <source>store the channels: %1</source>
        <translation>die Kanäle speichern: %1</translation>
    </message>
    <message>
        <source>The channels are stored: %1</source>
        <translation>Die Kanäle sind gespeichert: %1</translation>
    </message>
    <message>
        <source>channels is no array of {&quot;name&quot;: &quot;...&quot;, &quot;kind&quot;: &quot;...&quot;, &quot;settings&quot;: {...}}: give one such object a channel</source>
        <translation>channels ist kein Array aus {&quot;name&quot;: &quot;...&quot;, &quot;kind&quot;: &quot;...&quot;, &quot;settings&quot;: {...}}: Geben Sie für jeden Kanal ein solches Objekt an</translation>
    </message>
    <message>
        <source>the channel %1 is given twice: give each a name of its own</source>
        <translation>der Kanal %1 ist zweimal angegeben: Geben Sie jedem einen eigenen Namen</translation>
    </message>
    <message>
        <source>none is kept.</source>
        <translation>keines ist aufbewahrt.</translation>
    </message>
    <message>
        <source>The latest page is that of the last check. What may vary or is left out by rules is no difference. Exit status: 0 when equal, 1 when they differ.</source>
        <translation>Die letzte Seite ist die der letzten Prüfung. Was abweichen darf oder durch Regeln ausgelassen wird, ist kein Unterschied. Status: 0 bei Gleichheit, 1 bei Unterschieden.</translation>
    </message>
    <message>
        <source>A message to any of many services, through an Apprise server of your own</source>
        <translation>Eine Nachricht an einen von vielen Diensten, über einen eigenen Apprise-Server</translation>
    </message>
    <message>
        <source>A message in a channel of a chat that takes web hooks as Discord does</source>
        <translation>Eine Nachricht in einem Kanal eines Chats, der Web-Hooks so nimmt wie Discord</translation>
    </message>
    <message>
        <source>A message on phones and in browsers, through a server of your own</source>
        <translation>Eine Nachricht auf Telefonen und in Browsern, über einen eigenen Server</translation>
    </message>
    <message>
        <source>A message in a room of Matrix</source>
        <translation>Eine Nachricht in einem Raum von Matrix</translation>
    </message>
    <message>
        <source>A notice on phones and desktops, through a public server or one of your own</source>
        <translation>Ein Hinweis auf Telefonen und Desktops, über einen öffentlichen oder eigenen Server</translation>
    </message>
    <message>
        <source>A message in a channel of a chat that takes incoming web hooks as Slack does</source>
        <translation>Eine Nachricht in einem Kanal eines Chats, der eingehende Web-Hooks so nimmt wie Slack</translation>
    </message>
    <message>
        <source>The end of the web hook&apos;s address, behind /webhooks/</source>
        <translation>Das Ende der Adresse des Web-Hooks, hinter /webhooks/</translation>
    </message>
    <message>
        <source>The end of the web hook&apos;s address, behind /services/</source>
        <translation>Das Ende der Adresse des Web-Hooks, hinter /services/</translation>
    </message>
    <message>
        <source>The token of the application</source>
        <translation>Das Token der Anwendung</translation>
    </message>
    <message>
        <source>The access token of the account that writes</source>
        <translation>Das Zugangstoken des Kontos, das schreibt</translation>
    </message>
    <message>
        <source>The daily test alert has not arrived through %1.</source>
        <translation>Der tägliche Probealarm ist über %1 nicht angekommen.</translation>
    </message>
    <message>
        <source>The daily test alert has not arrived through %1: %2</source>
        <translation>Der tägliche Probealarm ist über %1 nicht angekommen: %2</translation>
    </message>
    <message>
        <source>The daily messages cannot leave: no channel is on for all sites.</source>
        <translation>Die täglichen Nachrichten können nicht hinaus: Kein Kanal ist für alle Seiten eingeschaltet.</translation>
    </message>
    <message>
        <source>The heartbeat is not taken: %1</source>
        <translation>Das Lebenszeichen wird nicht angenommen: %1</translation>
    </message>
    <message>
        <source>The heartbeat is taken again.</source>
        <translation>Das Lebenszeichen wird wieder angenommen.</translation>
    </message>
    <message>
        <source>answered with %1</source>
        <translation>mit %1 beantwortet</translation>
    </message>
    <message>
        <source>1 site names the channel %1 still. Who names no other one tells through those for all sites.</source>
        <translation>1 Seite nennt den Kanal %1 noch. Wer keinen anderen nennt, meldet über die für alle Seiten.</translation>
    </message>
    <message>
        <source>%1 sites name the channel %2 still. Who names no other one tells through those for all sites.</source>
        <translation>%1 Seiten nennen den Kanal %2 noch. Wer keinen anderen nennt, meldet über die für alle Seiten.</translation>
    </message>
    <message>
        <source>The file %1 cannot be changed: %2.</source>
        <translation>Die Datei %1 lässt sich nicht ändern: %2.</translation>
    </message>
    <message>
        <source>What starts with the desktop cannot be changed: Windows has refused it.</source>
        <translation>Was mit dem Desktop startet, lässt sich nicht ändern: Windows hat es abgelehnt.</translation>
    </message>
    <message>
        <source>Show or change the tags of sites, by which they are found</source>
        <translation>Die Schlagwörter von Sites zeigen oder ändern, mit denen man sie findet</translation>
    </message>
    <message>
        <source>The id of a site, or a query as the verb sites takes it, or all</source>
        <translation>Die ID einer Site, eine Suche, wie das Verb sites sie nimmt, oder all</translation>
    </message>
    <message>
        <source>The tags; without one they are shown</source>
        <translation>Die Schlagwörter; ohne eines werden sie gezeigt</translation>
    </message>
    <message>
        <source>Remove these tags instead of adding them</source>
        <translation>Diese Schlagwörter wegnehmen statt hinzufügen</translation>
    </message>
    <message>
        <source>site 3 has these two tags as well</source>
        <translation>Site 3 hat auch diese beiden Schlagwörter</translation>
    </message>
    <message>
        <source>and one of them no more</source>
        <translation>und eines davon nicht mehr</translation>
    </message>
    <message>
        <source>every site of that host</source>
        <translation>jede Site dieses Rechners</translation>
    </message>
    <message>
        <source>Say which tags are to be removed. See: tarnwickctl tag --help</source>
        <translation>Sagen Sie, welche Schlagwörter weg sollen. Siehe: tarnwickctl tag --help</translation>
    </message>
    <message>
        <source>Site %1 would have more than %2 tags. Remove some first, with --remove.</source>
        <translation>Site %1 hätte mehr als %2 Schlagwörter. Nehmen Sie erst einige weg, mit --remove.</translation>
    </message>
    <message>
        <source>%1 is no tag: give 1 to %2 bytes.</source>
        <translation>%1 ist kein Schlagwort: Geben Sie 1 bis %2 Bytes an.</translation>
    </message>
    <message>
        <source>%1 is no tag: give a word without blanks, commas, semicolons and quotes, and no - before it.</source>
        <translation>%1 ist kein Schlagwort: Geben Sie ein Wort ohne Leerzeichen, Kommas, Semikolons und Anführungszeichen an, und ohne - davor.</translation>
    </message>
    <message>
        <source>%1 is no tag: give 1 to %2 bytes</source>
        <translation>%1 ist kein Schlagwort: Geben Sie 1 bis %2 Bytes an</translation>
    </message>
    <message>
        <source>%1 is no tag: give a word without blanks, commas, semicolons and quotes, and no - before it</source>
        <translation>%1 ist kein Schlagwort: Geben Sie ein Wort ohne Leerzeichen, Kommas, Semikolons und Anführungszeichen an, und ohne - davor</translation>
    </message>
    <message>
        <source>Change several sites at once</source>
        <translation>Mehrere Sites auf einmal ändern</translation>
    </message>
    <message>
        <source>Let runs check them</source>
        <translation>Läufe prüfen sie</translation>
    </message>
    <message>
        <source>Leave them out of runs</source>
        <translation>Läufe lassen sie aus</translation>
    </message>
    <message>
        <source>Set an option, or remove it with NAME=; may be given several times</source>
        <translation>Eine Option setzen oder mit NAME= entfernen; mehrfach möglich</translation>
    </message>
    <message>
        <source>Add a tag; may be given several times</source>
        <translation>Ein Schlagwort hinzufügen; mehrfach möglich</translation>
    </message>
    <message>
        <source>Remove a tag; may be given several times</source>
        <translation>Ein Schlagwort wegnehmen; mehrfach möglich</translation>
    </message>
    <message>
        <source>Set their counters to 0</source>
        <translation>Ihre Zähler auf 0 setzen</translation>
    </message>
    <message>
        <source>Only show what would change</source>
        <translation>Nur zeigen, was sich ändern würde</translation>
    </message>
    <message>
        <source>All of them are changed, or none.</source>
        <translation>Alle werden geändert oder keine.</translation>
    </message>
    <message>
        <source>what would change of which site</source>
        <translation>was sich an welcher Site ändern würde</translation>
    </message>
    <message>
        <source>without a question</source>
        <translation>ohne Frage</translation>
    </message>
    <message>
        <source>Say what is to be changed. See: tarnwickctl change --help</source>
        <translation>Sagen Sie, was geändert werden soll. Siehe: tarnwickctl change --help</translation>
    </message>
    <message>
        <source>--option takes NAME=VALUE, and &quot;%1&quot; has no &quot;=&quot;.</source>
        <translation>--option nimmt NAME=VALUE, und „%1“ hat kein „=“.</translation>
    </message>
    <message>
        <source>The option %1 holds for all sites. Set it with: tarnwickctl option all %2</source>
        <translation>Die Option %1 gilt für alle Sites. Setzen Sie sie mit: tarnwickctl option all %2</translation>
    </message>
    <message>
        <source>%1 of %2 sites stay as they are.</source>
        <translation>%1 von %2 Sites bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Change %1?</source>
        <translation>%1 ändern?</translation>
    </message>
    <message>
        <source>%1 is changed.</source>
        <translation>%1 ist geändert.</translation>
    </message>
    <message>
        <source>%1 are changed.</source>
        <translation>%1 sind geändert.</translation>
    </message>
    <message>
        <source>Ids of sites, as the verb sites lists them, or a query as that takes it, or all</source>
        <translation>IDs von Sites, wie das Verb sites sie auflistet, eine Suche, wie es sie nimmt, oder all</translation>
    </message>
    <message>
        <source>Name the sites either by their ids or by a query: &quot;%1&quot; is both. In a query a site is named as in id:3,7.</source>
        <translation>Nennen Sie die Sites entweder mit ihren IDs oder mit einer Suche: „%1“ ist beides. In einer Suche nennt man eine Site wie in id:3,7.</translation>
    </message>
    <message>
        <source>No site of the list is like that: %1. See them with: tarnwickctl sites</source>
        <translation>Keine Site der Liste ist so: %1. Alle zeigt: tarnwickctl sites</translation>
    </message>
    <message>
        <source>%1 is no filter word. Write tag:, host: or id:, or put a text of an address in quotes.</source>
        <translation>%1 ist kein Filterwort. Schreiben Sie tag:, host: oder id:, oder setzen Sie einen Text aus einer Adresse in Anführungszeichen.</translation>
    </message>
    <message>
        <source>%1 needs a name behind it: write it without a blank, as in %2.</source>
        <translation>Hinter %1 fehlt ein Name: Schreiben Sie ihn ohne Leerzeichen dahinter, wie in %2.</translation>
    </message>
    <message>
        <source>%1 names no site: give numbers with commas between them, as in id:3,7.</source>
        <translation>%1 nennt keine Site: Geben Sie Nummern mit Kommas dazwischen an, wie in id:3,7.</translation>
    </message>
    <message>
        <source>A &quot;-&quot; excludes what the word behind it finds: write it without a blank, as in -down.</source>
        <translation>Ein „-“ schließt aus, was das Wort dahinter findet: Schreiben Sie es ohne Leerzeichen, wie in -down.</translation>
    </message>
    <message>
        <source>the last check failed</source>
        <translation>die letzte Prüfung schlug fehl</translation>
    </message>
    <message>
        <source>the last check was good</source>
        <translation>die letzte Prüfung war gut</translation>
    </message>
    <message>
        <source>down, with another page than the baseline</source>
        <translation>gestört, mit einer anderen Seite als der Basis</translation>
    </message>
    <message>
        <source>down, without a page</source>
        <translation>gestört, ohne eine Seite</translation>
    </message>
    <message>
        <source>failed, but not often enough to be told</source>
        <translation>fehlgeschlagen, aber nicht oft genug für eine Meldung</translation>
    </message>
    <message>
        <source>down, and the wrong page is acknowledged</source>
        <translation>gestört, und die falsche Seite ist bekannt</translation>
    </message>
    <message>
        <source>answers too slowly</source>
        <translation>antwortet zu langsam</translation>
    </message>
    <message>
        <source>never checked</source>
        <translation>nie geprüft</translation>
    </message>
    <message>
        <source>left out of runs</source>
        <translation>von Läufen ausgelassen</translation>
    </message>
    <message>
        <source>nothing is told of it now</source>
        <translation>davon wird gerade nichts gemeldet</translation>
    </message>
    <message>
        <source>found while this machine was offline</source>
        <translation>geprüft, während dieser Rechner offline war</translation>
    </message>
    <message>
        <source>its certificate ends soon</source>
        <translation>ihr Zertifikat läuft bald ab</translation>
    </message>
    <message>
        <source>active, but nobody checks it</source>
        <translation>aktiv, aber niemand prüft sie</translation>
    </message>
    <message>
        <source>has this tag</source>
        <translation>hat dieses Schlagwort</translation>
    </message>
    <message>
        <source>lies on this host, or below it</source>
        <translation>liegt auf diesem Rechner oder darunter</translation>
    </message>
    <message>
        <source>has this number, or one of several with commas between them</source>
        <translation>hat diese Nummer oder eine von mehreren mit Kommas dazwischen</translation>
    </message>
    <message>
        <source>Only those that all its words find; a - before a word excludes what it finds</source>
        <translation>Nur die, die alle Wörter finden; ein - vor einem Wort schließt aus, was es findet</translation>
    </message>
    <message>
        <source>Only show which sites would be deleted</source>
        <translation>Nur zeigen, welche Sites gelöscht würden</translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation>SCHLAGWÖRTER</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>known</source>
        <translation>bekannt</translation>
    </message>
    <message>
        <source>Take the latest pages of sites as their baselines</source>
        <translation>Die letzten Seiten von Sites als ihre Basis übernehmen</translation>
    </message>
    <message>
        <source>Only sites that have changed as this one has; of all sites where none are named</source>
        <translation>Nur Sites, die sich geändert haben wie diese; unter allen, wo keine genannt sind</translation>
    </message>
    <message>
        <source>Keep the baseline as well: either page is good</source>
        <translation>Die Basis auch behalten: jede der Seiten ist gut</translation>
    </message>
    <message>
        <source>Only show what would be accepted</source>
        <translation>Nur zeigen, was übernommen würde</translation>
    </message>
    <message>
        <source>Also a page that looks like an error, or is much shorter than the baseline</source>
        <translation>Auch eine Seite, die nach einem Fehler aussieht oder viel kürzer als die Basis ist</translation>
    </message>
    <message>
        <source>Exactly the bytes of the last check are taken. The baseline before is kept, ten of a site: the verb baseline</source>
        <translation>Genau die Bytes der letzten Prüfung werden übernommen. Zehn frühere Basen je Site werden behalten:</translation>
    </message>
    <message>
        <source>lists them and gives the last one back.</source>
        <translation>das Verb baseline listet sie auf und gibt die letzte zurück.</translation>
    </message>
    <message>
        <source>shows what has changed, and asks</source>
        <translation>zeigt, was sich geändert hat, und fragt</translation>
    </message>
    <message>
        <source>two servers, two good pages</source>
        <translation>zwei Server, zwei gute Seiten</translation>
    </message>
    <message>
        <source>which sites have changed as site 3 has</source>
        <translation>welche Sites sich geändert haben wie Site 3</translation>
    </message>
    <message>
        <source>all of them, without a question</source>
        <translation>alle, ohne Frage</translation>
    </message>
    <message>
        <source>Say which sites. See: tarnwickctl accept --help</source>
        <translation>Sagen Sie, welche Sites. Siehe: tarnwickctl accept --help</translation>
    </message>
    <message>
        <source>Site %1 has not changed, so no site has changed as it has.</source>
        <translation>Site %1 hat sich nicht geändert, also auch keine Site wie sie.</translation>
    </message>
    <message>
        <source>Site %1 is as it should be: its latest page is a good one.</source>
        <translation>Site %1 ist, wie sie sein soll: Ihre letzte Seite ist eine gute.</translation>
    </message>
    <message>
        <source>The latest page of site %1 was not kept, since there was too little room on the disk. Make room, then fetch it with: %2</source>
        <translation>Die letzte Seite der Site %1 wurde nicht behalten, da auf der Platte zu wenig Platz war. Schaffen Sie Platz, und holen Sie sie mit: %2</translation>
    </message>
    <message>
        <source>The latest check of site %1 brought no page but &quot;%2&quot;. Check again with: %3; if that is the page&apos;s own text, use --anyway.</source>
        <translation>Die letzte Prüfung der Site %1 brachte keine Seite, sondern „%2“. Prüfen Sie noch einmal mit: %3; ist das der Text der Seite selbst, nehmen Sie --anyway.</translation>
    </message>
    <message>
        <source>The latest page of site %1 looks like an error page (%2). If it is how the page shall be, use --anyway.</source>
        <translation>Die letzte Seite der Site %1 sieht nach einer Fehlerseite aus (%2). Soll die Seite so sein, nehmen Sie --anyway.</translation>
    </message>
    <message>
        <source>The latest page of site %1 has less than half the size of the baseline (%2 bytes instead of %3). If it is how the page shall be, use --anyway.</source>
        <translation>Die letzte Seite der Site %1 hat weniger als die halbe Größe der Basis (%2 Bytes statt %3). Soll die Seite so sein, nehmen Sie --anyway.</translation>
    </message>
    <message>
        <source>%1 of %2 sites stay as they are: they have no page that could be accepted.</source>
        <translation>%1 von %2 Sites bleiben, wie sie sind: Sie haben keine Seite, die übernommen werden könnte.</translation>
    </message>
    <message>
        <source>%1 is new</source>
        <translation>%1 ist neu</translation>
    </message>
    <message>
        <source>%1 is gone</source>
        <translation>%1 ist weg</translation>
    </message>
    <message>
        <source>%1 became %2</source>
        <translation>%1 wurde zu %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Of the places that may vary %1 is not in this page.</source>
        <translation>Von den Stellen, die abweichen dürfen, ist %1 nicht auf dieser Seite.</translation>
    </message>
    <message>
        <source>Of the places that may vary %1 are not in this page.</source>
        <translation>Von den Stellen, die abweichen dürfen, sind %1 nicht auf dieser Seite.</translation>
    </message>
    <message>
        <source>Is that page (%1 bytes) the new baseline of site %2?</source>
        <translation>Ist diese Seite (%1 Bytes) die neue Basis der Site %2?</translation>
    </message>
    <message>
        <source>Is that page (%1 bytes) good for site %2, too?</source>
        <translation>Ist diese Seite (%1 Bytes) für Site %2 auch gut?</translation>
    </message>
    <message>
        <source>Are these pages the new baselines of %1 sites?</source>
        <translation>Sind diese Seiten die neuen Basen von %1 Sites?</translation>
    </message>
    <message>
        <source>Are these pages of %1 sites good, too?</source>
        <translation>Sind diese Seiten von %1 Sites auch gut?</translation>
    </message>
    <message>
        <source>Site %1: the latest page is the baseline.</source>
        <translation>Site %1: Die letzte Seite ist die Basis.</translation>
    </message>
    <message>
        <source>Site %1: the latest page is good, too.</source>
        <translation>Site %1: Die letzte Seite ist auch gut.</translation>
    </message>
    <message>
        <source>Site %1 has %2 further good pages, and more are not kept. Remove one first, with: tarnwickctl baseline %3 drop NUMBER</source>
        <translation>Site %1 hat %2 weitere gute Seiten, und mehr werden nicht behalten. Entfernen Sie erst eine, mit: tarnwickctl baseline %3 drop NUMBER</translation>
    </message>
    <message>
        <source>Say nothing of sites as long as exactly the wrong page stays that they have</source>
        <translation>Über Sites nichts melden, solange genau die falsche Seite bleibt, die sie haben</translation>
    </message>
    <message>
        <source>Tell of them again</source>
        <translation>Sie wieder melden</translation>
    </message>
    <message>
        <source>Any other wrong page is told at once. As soon as a site is up again its acknowledgement is over.</source>
        <translation>Jede andere falsche Seite wird sofort gemeldet. Sobald eine Site wieder gut ist, ist es damit vorbei.</translation>
    </message>
    <message>
        <source>somebody is at it</source>
        <translation>jemand ist dran</translation>
    </message>
    <message>
        <source>and is not any more</source>
        <translation>und ist es nicht mehr</translation>
    </message>
    <message>
        <source>Site %1 is told of again.</source>
        <translation>Site %1 wird wieder gemeldet.</translation>
    </message>
    <message>
        <source>Site %1 is known: nothing is told of it while exactly this page stays.</source>
        <translation>Site %1 ist bekannt: Solange genau diese Seite bleibt, wird nichts gemeldet.</translation>
    </message>
    <message>
        <source>Show which sites have changed, those together that have changed alike</source>
        <translation>Zeigen, welche Sites sich geändert haben, die gleich geänderten zusammen</translation>
    </message>
    <message>
        <source>Only of these sites, as the verb sites takes it</source>
        <translation>Nur von diesen Sites, wie das Verb sites es nimmt</translation>
    </message>
    <message>
        <source>298 sites have a new year in the foot, and one a new price</source>
        <translation>298 Sites haben eine neue Jahreszahl im Fuß, und eine einen neuen Preis</translation>
    </message>
    <message>
        <source>the same of some sites</source>
        <translation>dasselbe von einigen Sites</translation>
    </message>
    <message>
        <source>No site has another page than its baseline.</source>
        <translation>Keine Site hat eine andere Seite als ihre Basis.</translation>
    </message>
    <message>
        <source>Site %1 has no earlier baseline: none was kept, since no page was accepted.</source>
        <translation>Site %1 hat keine frühere Basis: Keine wurde behalten, da keine Seite übernommen wurde.</translation>
    </message>
    <message>
        <source>The baseline before is the baseline again.</source>
        <translation>Die Basis davor ist wieder die Basis.</translation>
    </message>
    <message>
        <source>The baseline before is the baseline again. (%1)</source>
        <translation>Die Basis davor ist wieder die Basis. (%1)</translation>
    </message>
    <message>
        <source>Site %1 has no baseline beside that which the verb baseline shows.</source>
        <translation>Site %1 hat keine Basis neben der, die das Verb baseline zeigt.</translation>
    </message>
    <message>
        <source>NUMBER</source>
        <translation>NUMMER</translation>
    </message>
    <message>
        <source>KEPT</source>
        <translation>SEIT</translation>
    </message>
    <message>
        <source>BYTES</source>
        <translation>BYTES</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>WAS</translation>
    </message>
    <message>
        <source>good, too</source>
        <translation>auch gut</translation>
    </message>
    <message>
        <source>replaced</source>
        <translation>ersetzt</translation>
    </message>
    <message>
        <source>Site %1 has no baseline of the number &quot;%2&quot;. See them with: tarnwickctl baseline %3 list</source>
        <translation>Site %1 hat keine Basis mit der Nummer „%2“. Alle zeigt: tarnwickctl baseline %3 list</translation>
    </message>
    <message>
        <source>Baseline %1 of site %2 is removed.</source>
        <translation>Basis %1 der Site %2 ist entfernt.</translation>
    </message>
    <message>
        <source>Only &quot;set&quot; takes a file, and &quot;drop&quot; a number.</source>
        <translation>Nur „set“ nimmt eine Datei, und „drop“ eine Nummer.</translation>
    </message>
    <message>
        <source>show (default), load (fetch it from the URL now), set FILE, clear, accept (take the latest page), undo (the one before accept), list (those that are kept), drop NUMBER</source>
        <translation>show (sonst), load (jetzt von der URL holen), set FILE, clear, accept (den letzten Inhalt nehmen), undo (den vor accept), list (die behaltenen), drop NUMBER</translation>
    </message>
    <message>
        <source>The file for &quot;set&quot;, - is standard input; the number for &quot;drop&quot;</source>
        <translation>Die Datei für „set“, - ist die Standardeingabe; die Nummer für „drop“</translation>
    </message>
    <message>
        <source>the one before it was accepted</source>
        <translation>die davor</translation>
    </message>
    <message>
        <source>the kept baseline &quot;%1&quot; is none: give it as an export writes it</source>
        <translation>die behaltene Basis „%1“ ist keine: Geben Sie sie an, wie ein Export sie schreibt</translation>
    </message>
    <message>
        <source>tags is no array: give [&quot;TAG&quot;, ...]</source>
        <translation>tags ist kein Array: Geben Sie [&quot;WORT&quot;, ...] an</translation>
    </message>
    <message>
        <source>baselines is no array: give it as an export writes it</source>
        <translation>baselines ist kein Array: Geben Sie es an, wie ein Export es schreibt</translation>
    </message>
    <message>
        <source>Site %1 cannot be put back, since another site has its id meanwhile. Delete that one first, or add the address anew.</source>
        <translation>Site %1 kann nicht zurückgeholt werden, da eine andere Site inzwischen ihre ID hat. Löschen Sie erst diese, oder fügen Sie die Adresse neu hinzu.</translation>
    </message>
    <message>
        <source>Certificates</source>
        <translation>Zertifikate</translation>
    </message>
    <message>
        <source>Check the user and the password; some providers want a password made for programs.</source>
        <translation>Prüfen Sie Benutzer und Passwort; manche Anbieter wollen ein eigenes Passwort für Programme.</translation>
    </message>
    <message>
        <source>Check User, Password and Encryption: the server wants to know who sends.</source>
        <translation>Prüfen Sie Benutzer, Passwort und Verschlüsselung: Der Server will wissen, wer sendet.</translation>
    </message>
    <message>
        <source>Check From: most servers take the address of the account alone.</source>
        <translation>Prüfen Sie „Von“: Die meisten Server nehmen nur die Adresse des Kontos.</translation>
    </message>
    <message>
        <source>Check the address in To.</source>
        <translation>Prüfen Sie die Adresse in „An“.</translation>
    </message>
    <message>
        <source>Check the name of the server; where its certificate is your own, name the CA file.</source>
        <translation>Prüfen Sie den Namen des Servers; ist sein Zertifikat Ihr eigenes, nennen Sie die CA-Datei.</translation>
    </message>
    <message>
        <source>Check the token.</source>
        <translation>Prüfen Sie das Token.</translation>
    </message>
    <message>
        <source>Check the address.</source>
        <translation>Prüfen Sie die Adresse.</translation>
    </message>
    <message>
        <source>The system makes no SHA-256 digest.</source>
        <translation>Das System berechnet keine SHA-256-Prüfsumme.</translation>
    </message>
    <message>
        <source>Site %1 would have more than %2 tags. Remove some first.</source>
        <translation>Seite %1 hätte mehr als %2 Schlagwörter. Entfernen Sie zuerst einige.</translation>
    </message>
    <message>
        <source>These sites hold more than 256 MB, which is too much to be kept until somebody wants them back. Nothing was deleted. Delete fewer at a time, or in a terminal with: tarnwickctl delete</source>
        <translation>Diese Seiten umfassen mehr als 256 MB, zu viel, um es aufzuheben, bis jemand sie zurückholt. Nichts wurde gelöscht. Löschen Sie weniger auf einmal, oder in einem Terminal mit: tarnwickctl delete</translation>
    </message>
    <message>
        <source>Ask for one of --json, --csv and --svg.</source>
        <translation>Verlangen Sie nur eines von --json, --csv und --svg.</translation>
    </message>
    <message>
        <source>A picture is of one site: name one for --svg.</source>
        <translation>Ein Bild zeigt eine Seite: Nennen Sie für --svg genau eine.</translation>
    </message>
    <message>
        <source>No history is kept. To keep it: tarnwickctl option all history=on</source>
        <translation>Es wird kein Verlauf festgehalten. Einschalten: tarnwickctl option all history=on</translation>
    </message>
    <message>
        <source>Show when sites were up or down, and how long their answers took</source>
        <translation>Zeigt, wann Seiten erreichbar oder gestört waren und wie lange ihre Antworten dauerten</translation>
    </message>
    <message>
        <source>Write a picture of one site&apos;s stripes into this file; - is standard output</source>
        <translation>Schreibt ein Bild der Streifen einer Seite in diese Datei; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>Print each cell of each stripe as a row of CSV</source>
        <translation>Gibt jedes Feld jedes Streifens als Zeile in CSV aus</translation>
    </message>
    <message>
        <source>Of 24 hours, 7, 30, 90 and 365 days. Per cent are those of the time of which something is known.</source>
        <translation>Von 24 Stunden, 7, 30, 90 und 365 Tagen. Die Prozente gelten für die bekannte Zeit.</translation>
    </message>
    <message>
        <source>The option history says whether it is kept.</source>
        <translation>Die Option history sagt, ob er festgehalten wird.</translation>
    </message>
    <message>
        <source>stripes, figures and outages of a site</source>
        <translation>Streifen, Zahlen und Ausfälle einer Seite</translation>
    </message>
    <message>
        <source>one line for each site</source>
        <translation>eine Zeile für jede Seite</translation>
    </message>
    <message>
        <source>a picture for a web page or a mail</source>
        <translation>ein Bild für eine Webseite oder eine Mail</translation>
    </message>
    <message>
        <source>Print how the sites stand as figures for Prometheus</source>
        <translation>Gibt aus, wie die Seiten stehen, als Zahlen für Prometheus</translation>
    </message>
    <message>
        <source>Replace this file as a whole instead, as the textfile collector of its node exporter wants it</source>
        <translation>Ersetzt stattdessen diese Datei als Ganzes, wie es der Textfile-Collector des Node-Exporters erwartet</translation>
    </message>
    <message>
        <source>every figure of every site</source>
        <translation>jede Zahl jeder Seite</translation>
    </message>
    <message>
        <source>for the textfile collector, from cron</source>
        <translation>für den Textfile-Collector, aus cron</translation>
    </message>
    <message>
        <source>The name of the file %1 ends neither in .csv nor in .json, so its format is not known. Give it one of them.</source>
        <translation>Der Name der Datei %1 endet weder auf .csv noch auf .json, daher ist ihr Format nicht bekannt. Geben Sie ihr eine dieser Endungen.</translation>
    </message>
    <message>
        <source>The name of the file %1 ends neither in .svg nor in .png, so its format is not known. Give it one of them.</source>
        <translation>Der Name der Datei %1 endet weder auf .svg noch auf .png, ihr Format ist also nicht bekannt. Geben Sie ihr eines davon.</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>1 day (paused)</source>
        <translation>1 Tag (pausiert)</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>%1 days (paused)</source>
        <translation>%1 Tage (pausiert)</translation>
    </message>
    <message>
        <source>It holds for %1 more, until %2.</source>
        <translation>Es gilt noch %1, bis %2.</translation>
    </message>
    <message>
        <source>It holds for %1 more, until %2. It was issued by %3.</source>
        <translation>Es gilt noch %1, bis %2. Ausgestellt hat es %3.</translation>
    </message>
    <message>
        <source>It holds for %1 more, until %2. It was issued by %3, the one before by %4.</source>
        <translation>Es gilt noch %1, bis %2. Ausgestellt hat es %3, das vorige %4.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>By options of the alarm it may be &quot;unconfirmed (1 of 3)&quot;, &quot;unsteady&quot;, &quot;slow&quot; or &quot;12 days&quot;, as long as</source>
        <translation>Nach Optionen des Alarms auch &quot;unbestätigt (1 von 3)&quot;, &quot;unruhig&quot;, &quot;langsam&quot; oder &quot;12 Tage&quot;, solange</translation>
    </message>
    <message>
        <source>its certificate still holds, and &quot;unknown&quot; while this machine is offline; &quot;(paused)&quot; behind it says that</source>
        <translation>das Zertifikat noch gilt, und &quot;unbekannt&quot;, solange dieser Rechner offline ist; &quot;(pausiert)&quot; dahinter heißt,</translation>
    </message>
    <message>
        <source>nothing is told.</source>
        <translation>dass nichts gemeldet wird.</translation>
    </message>
    <message>
        <source>Write a page that tells others which sites are up</source>
        <translation>Eine Seite schreiben, die anderen sagt, welche Seiten erreichbar sind</translation>
    </message>
    <message>
        <source>Where to write it as index.html; the folder is made when it is missing</source>
        <translation>Wohin sie als index.html geschrieben wird; ein fehlender Ordner wird angelegt</translation>
    </message>
    <message>
        <source>A run keeps it up to date by itself where the option statusPage names a folder.</source>
        <translation>Ein Lauf hält sie von selbst aktuell, wo die Option statusPage einen Ordner nennt.</translation>
    </message>
    <message>
        <source>once, as things stand now</source>
        <translation>einmal, wie es jetzt steht</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Known</source>
        <translation>Bekannt</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Prüfungen</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>95 %%</source>
        <translation>95 %%</translation>
    </message>
    <message>
        <source>Slowest</source>
        <translation>Längste</translation>
    </message>
    <message>
        <source>Down since</source>
        <translation>Ausgefallen seit</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Outages</source>
        <translation>Ausfälle</translation>
    </message>
    <message>
        <source>In outages</source>
        <translation>In Ausfällen</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>In the month</source>
        <translation>Im Monat</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Endet</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Show how the sites were in a month</source>
        <translation>Zeigt, wie es den Seiten in einem Monat ging</translation>
    </message>
    <message>
        <source>As in 2026-11; without one the last that has ended</source>
        <translation>Wie in 2026-11; ohne einen der letzte, der vorbei ist</translation>
    </message>
    <message>
        <source>Write it as a page into this file; - is standard output</source>
        <translation>Schreibt ihn als Seite in diese Datei; - ist die Standardausgabe</translation>
    </message>
    <message>
        <source>Print one of its tables as CSV</source>
        <translation>Gibt eine seiner Tabellen als CSV aus</translation>
    </message>
    <message>
        <source>Per cent are those of the time of which something is known. An outage counts as far as it lies in the</source>
        <translation>Prozente gelten für die Zeit, von der etwas bekannt ist. Ein Ausfall zählt, soweit er im Monat</translation>
    </message>
    <message>
        <source>month. Certificates are shown as they are now. With the option monthReport a run makes it by itself.</source>
        <translation>liegt. Zertifikate sind die von jetzt. Mit der Option monthReport macht ein Lauf ihn von selbst.</translation>
    </message>
    <message>
        <source>of the last month</source>
        <translation>vom letzten Monat</translation>
    </message>
    <message>
        <source>as a page</source>
        <translation>als Seite</translation>
    </message>
    <message>
        <source>its outages, for a spreadsheet</source>
        <translation>seine Ausfälle, für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>all its tables</source>
        <translation>alle seine Tabellen</translation>
    </message>
    <message>
        <source>Month %1, as it was known %2</source>
        <translation>Monat %1, nach dem Stand von %2</translation>
    </message>
    <message>
        <source>All sites</source>
        <translation>Alle Seiten</translation>
    </message>
    <message>
        <source>Sites, the worst first</source>
        <translation>Seiten, die schlechteste zuerst</translation>
    </message>
    <message>
        <source>Outages, the latest first</source>
        <translation>Ausfälle, der letzte zuerst</translation>
    </message>
    <message>
        <source>The slowest sites</source>
        <translation>Die langsamsten Seiten</translation>
    </message>
    <message>
        <source>The certificates that end soonest</source>
        <translation>Die Zertifikate, die zuerst enden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no month. Write it as in &quot;%2&quot;.</source>
        <translation>„%1“ ist kein Monat. Schreiben Sie ihn wie in „%2“.</translation>
    </message>
    <message>
        <source>The month %1 has not begun. The present one is %2.</source>
        <translation>Der Monat %1 hat noch nicht begonnen. Jetzt ist %2.</translation>
    </message>
    <message>
        <source>Ask for one of --json, --csv and --html.</source>
        <translation>Verlangen Sie nur eines von --json, --csv und --html.</translation>
    </message>
    <message>
        <source>%1 To write the report of that month elsewhere: tarnwickctl month-report %2 --html FILE</source>
        <translation>%1 Um den Bericht dieses Monats woandershin zu schreiben: tarnwickctl month-report %2 --html DATEI</translation>
    </message>
    <message>
        <source>To set the option %1, write: %2</source>
        <translation>Um die Option %1 zu setzen, schreiben Sie: %2</translation>
    </message>
    <message>
        <source>The history would be taken in, too (sites: %1, hours: %2, outages: %3).</source>
        <translation>Der Verlauf würde auch übernommen (Seiten: %1, Stunden: %2, Ausfälle: %3).</translation>
    </message>
    <message>
        <source>The history is taken in, too (sites: %1, hours: %2, outages: %3).</source>
        <translation>Der Verlauf ist auch übernommen (Seiten: %1, Stunden: %2, Ausfälle: %3).</translation>
    </message>
    <message>
        <source>Write the history of each site as well: its hours, days and months, and its outages</source>
        <translation>Auch den Verlauf jeder Seite schreiben: ihre Stunden, Tage und Monate und ihre Ausfälle</translation>
    </message>
    <message>
        <source>The file holds what has been set for each site, with its POST variables, and as JSON the channels; what checks have found is part of it only where the history is wanted. Only you can read it, and one that is there already is replaced when the new one is complete.</source>
        <translation>Die Datei enthält, was für jede Seite eingestellt ist, mit ihren POST-Variablen, und als JSON die Kanäle; was Prüfungen ergaben, gehört nur dazu, wo der Verlauf gewünscht ist. Nur Sie können sie lesen, und eine vorhandene wird erst ersetzt, wenn die neue vollständig ist.</translation>
    </message>
    <message>
        <source>history is no array: give it as an export writes it</source>
        <translation>history ist kein Array: so angeben, wie ein Export es schreibt</translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; is none: give it as an export writes it</source>
        <translation>die Zeile des Verlaufs &quot;%1&quot; ist keine: so angeben, wie ein Export sie schreibt</translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; begins at no full hour of any clock: give the seconds since 1970 at which it began</source>
        <translation>die Zeile des Verlaufs &quot;%1&quot; beginnt zu keiner vollen Stunde irgendeiner Uhr: die Sekunden seit 1970 angeben, bei denen sie begann</translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; has %2 seconds: give it 1 to %3</source>
        <translation>die Zeile des Verlaufs &quot;%1&quot; hat %2 Sekunden: 1 bis %3 angeben</translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; was up and unknown for longer than its %2 seconds: the two together are as much at most</source>
        <translation>die Zeile des Verlaufs &quot;%1&quot; war länger erreichbar und unbekannt als ihre %2 Sekunden: beides zusammen ist höchstens so viel</translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; tells how long more answers took than it had checks: give it as many checks at least</source>
        <translation>die Zeile des Verlaufs &quot;%1&quot; sagt von mehr Antworten, wie lange sie brauchten, als sie Prüfungen hat: mindestens so viele Prüfungen angeben</translation>
    </message>
    <message>
        <source>the line of the history &quot;%1&quot; ended before it began: give the end as the second number, or - while it is on</source>
        <translation>die Zeile des Verlaufs &quot;%1&quot; endete, bevor sie begann: das Ende als zweite Zahl angeben, oder - solange er andauert</translation>
    </message>
    <message>
        <source>The latest page of site %1 is empty, which cannot be a baseline. Check again with: %2</source>
        <translation>Der letzte Inhalt der Seite %1 ist leer, was keine Basis sein kann. Noch einmal prüfen mit: %2</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Email address</source>
        <translation>Email-Adresse</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>Audiodatei</translation>
    </message>
    <message>
        <source>Program file</source>
        <translation>Programmdatei</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 s stored</source>
        <translation>%1 s gespeichert</translation>
    </message>
    <message>
        <source>Stored TCP Timeout</source>
        <translation>Gespeichertes TCP-Zeitlimit</translation>
    </message>
    <message>
        <source>OK stores no time-out while none is selected; a fetch may then take %1</source>
        <translation>OK speichert kein Zeitlimit, solange keines ausgewählt ist; ein Abruf darf dann %1 dauern</translation>
    </message>
    <message>
        <source>This page is stored in the Windows-1252 character set, which has no &quot;%1&quot;. Delete the character that is selected now or type another one, then press OK again.</source>
        <translation>Diese Seite ist im Zeichensatz Windows-1252 gespeichert, in dem es „%1“ nicht gibt. Löschen Sie das jetzt markierte Zeichen oder geben Sie ein anderes ein und drücken Sie noch einmal OK.</translation>
    </message>
    <message>
        <source>The sender of the alert mails</source>
        <translation>Der Absender der Alarm-Mails</translation>
    </message>
    <message>
        <source>SMTP</source>
        <translation>SMTP</translation>
    </message>
    <message>
        <source>The mail server; it takes mail on port 25 without a log-in</source>
        <translation>Der Mail-Server; er nimmt Mails auf Port 25 ohne Anmeldung an</translation>
    </message>
    <message>
        <source>The .wav file of the alert sound</source>
        <translation>Die .wav-Datei des Alarmtons</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>&amp;Wählen</translation>
    </message>
    <message>
        <source>Choose a sound file</source>
        <translation>Eine Tondatei auswählen</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Test</translation>
    </message>
    <message>
        <source>Play this sound now</source>
        <translation>Diesen Ton jetzt abspielen</translation>
    </message>
    <message>
        <source>The alert program; ~1~ to ~6~ stand for what happened where</source>
        <translation>Das Alarmprogramm; ~1~ bis ~6~ stehen dafür, was wo geschehen ist</translation>
    </message>
    <message>
        <source>Bro&amp;wse</source>
        <translation>Wä&amp;hlen</translation>
    </message>
    <message>
        <source>Choose a program</source>
        <translation>Ein Programm auswählen</translation>
    </message>
    <message>
        <source>T&amp;est</source>
        <translation>T&amp;est</translation>
    </message>
    <message>
        <source>Start this program now, with sample values</source>
        <translation>Dieses Programm jetzt mit Beispielwerten starten</translation>
    </message>
    <message>
        <source>Lo&amp;gs</source>
        <translation>Lo&amp;g</translation>
    </message>
    <message>
        <source>Keep a log of all checks</source>
        <translation>Alle Prüfungen protokollieren</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Berichte</translation>
    </message>
    <message>
        <source>Write the report of the day during a run</source>
        <translation>Während eines Laufs den Tagesbericht schreiben</translation>
    </message>
    <message>
        <source>Emai&amp;l</source>
        <translation>E-Mai&amp;l</translation>
    </message>
    <message>
        <source>Send alert mails for the sites that ask for them</source>
        <translation>Alarm-Mails für die Seiten senden, die sie verlangen</translation>
    </message>
    <message>
        <source>A&amp;udio</source>
        <translation>A&amp;udio</translation>
    </message>
    <message>
        <source>Play the alert sound</source>
        <translation>Den Alarmton abspielen</translation>
    </message>
    <message>
        <source>Pr&amp;ogram</source>
        <translation>Pr&amp;ogramm</translation>
    </message>
    <message>
        <source>Start the alert program</source>
        <translation>Das Alarmprogramm starten</translation>
    </message>
    <message>
        <source>TCP Timeout in seconds</source>
        <translation>TCP-Zeitlimit in Sekunden</translation>
    </message>
    <message>
        <source>How many seconds the fetch of a page may take</source>
        <translation>Wie viele Sekunden das Holen einer Seite dauern darf</translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>Store the settings and close</source>
        <translation>Die Einstellungen speichern und schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close without storing (Esc)</source>
        <translation>Schließen, ohne zu speichern (Esc)</translation>
    </message>
    <message>
        <source>E&amp;mail</source>
        <translation>E-&amp;Mail</translation>
    </message>
    <message>
        <source>&amp;SMTP</source>
        <translation>&amp;SMTP</translation>
    </message>
    <message>
        <source>&amp;Audio</source>
        <translation>&amp;Audio</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programm</translation>
    </message>
    <message>
        <source>TCP T&amp;imeout</source>
        <translation>TCP-Ze&amp;itlimit</translation>
    </message>
    <message>
        <source>&amp;Clear Logs</source>
        <translation>Log lee&amp;ren</translation>
    </message>
    <message>
        <source>Delete every log line</source>
        <translation>Alle Zeilen des Protokolls löschen</translation>
    </message>
    <message>
        <source>logs ...</source>
        <translation>Log ...</translation>
    </message>
    <message>
        <source>Status of Clear Logs</source>
        <translation>Stand von „Log leeren“</translation>
    </message>
    <message>
        <source>Compact &amp;Database</source>
        <translation>&amp;Datenbank verdichten</translation>
    </message>
    <message>
        <source>Back the database up, then make its file as small as it can be</source>
        <translation>Die Datenbank sichern und ihre Datei dann so klein wie möglich machen</translation>
    </message>
    <message>
        <source>compact ...</source>
        <translation>Verdichten ...</translation>
    </message>
    <message>
        <source>Status of Compact Database</source>
        <translation>Stand von „Datenbank verdichten“</translation>
    </message>
    <message>
        <source>Create / &amp;View Report</source>
        <translation>Bericht schreiben / &amp;zeigen</translation>
    </message>
    <message>
        <source>Write the report of today and open it</source>
        <translation>Den Bericht von heute schreiben und öffnen</translation>
    </message>
    <message>
        <source>report ...</source>
        <translation>Bericht ...</translation>
    </message>
    <message>
        <source>Status of Create / View Report</source>
        <translation>Stand von „Bericht schreiben / zeigen“</translation>
    </message>
    <message>
        <source>Configuration Data</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Administration Functions</source>
        <translation>Verwaltung</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Start a run: tests every active site now (F5)</source>
        <translation>Einen Lauf beginnen: prüft jetzt jede aktive Seite (F5)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>S&amp;topp</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Stop the run (Shift+F5)</source>
        <translation>Den Lauf beenden (Umschalt+F5)</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Add a site (Ctrl+N)</source>
        <translation>Eine Seite hinzufügen (Strg+N)</translation>
    </message>
    <message>
        <source>Set&amp;up</source>
        <translation>&amp;Einrichten</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Testing</source>
        <translation>Prüft</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Online Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Open the help page (F1)</source>
        <translation>Die Hilfeseite öffnen (F1)</translation>
    </message>
    <message>
        <source>%1 home page</source>
        <translation>Startseite von %1</translation>
    </message>
    <message>
        <source>Open the home page</source>
        <translation>Die Startseite öffnen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Progress of the test pass</source>
        <translation>Fortschritt des Durchgangs</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>This is not the address of a web page. One looks like https://example.org/page.</source>
        <translation>Das ist nicht die Adresse einer Internet-Seite. Eine solche sieht aus wie https://example.org/page.</translation>
    </message>
    <message>
        <source>This desktop could not open the page. You find it at:</source>
        <translation>Diese Arbeitsumgebung konnte die Seite nicht öffnen. Sie finden sie unter:</translation>
    </message>
    <message>
        <source>Url</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>&amp;Visit</source>
        <translation>&amp;Besuchen</translation>
    </message>
    <message>
        <source>Open the site in the browser</source>
        <translation>Die Seite im Browser öffnen</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>&amp;Get</source>
        <translation>&amp;Get</translation>
    </message>
    <message>
        <source>Method: Get</source>
        <translation>Methode: Get</translation>
    </message>
    <message>
        <source>P&amp;ost</source>
        <translation>P&amp;ost</translation>
    </message>
    <message>
        <source>Method: Post</source>
        <translation>Methode: Post</translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation>&amp;Aktiv</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Interval in minutes</source>
        <translation>Abstand in Minuten</translation>
    </message>
    <message>
        <source>&amp;Url</source>
        <translation>&amp;URL</translation>
    </message>
    <message>
        <source>User&amp;name</source>
        <translation>Be&amp;nutzername</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Passwort</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>&amp;Interval ( in minutes )</source>
        <translation>Abstand ( &amp;in Minuten )</translation>
    </message>
    <message>
        <source>POST variables</source>
        <translation>POST-Variablen</translation>
    </message>
    <message>
        <source>Name of the new variable</source>
        <translation>Name der neuen Variablen</translation>
    </message>
    <message>
        <source>enter name here</source>
        <translation>hier Namen eingeben</translation>
    </message>
    <message>
        <source>Value of the new variable</source>
        <translation>Wert der neuen Variablen</translation>
    </message>
    <message>
        <source>enter value here</source>
        <translation>hier Wert eingeben</translation>
    </message>
    <message>
        <source>Add PO&amp;ST Variable</source>
        <translation>PO&amp;ST-Variable hinzufügen</translation>
    </message>
    <message>
        <source>Clear POST Varia&amp;bles</source>
        <translation>POST-&amp;Variablen löschen</translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation>&amp;E-Mail</translation>
    </message>
    <message>
        <source>Alert by e-mail</source>
        <translation>Alarm durch E-Mail</translation>
    </message>
    <message>
        <source>E-mail address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Page&amp;r</source>
        <translation>Page&amp;r</translation>
    </message>
    <message>
        <source>Alert by pager</source>
        <translation>Alarm durch Pager</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>Pager</translation>
    </message>
    <message>
        <source>Save and close</source>
        <translation>Speichern und schließen</translation>
    </message>
    <message>
        <source>App&amp;ly</source>
        <translation>Überne&amp;hmen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>&amp;Content</source>
        <translation>Inhal&amp;t</translation>
    </message>
    <message>
        <source>Save, then show the page that every check is compared with</source>
        <translation>Speichern und dann die Seite zeigen, mit der jede Prüfung vergleicht</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete this site</source>
        <translation>Diese Seite löschen</translation>
    </message>
    <message>
        <source>Coun&amp;ters</source>
        <translation>&amp;Zähler</translation>
    </message>
    <message>
        <source>Reset counters</source>
        <translation>Zähler zurücksetzen</translation>
    </message>
    <message>
        <source>Close without saving (Esc)</source>
        <translation>Schließen, ohne zu speichern (Esc)</translation>
    </message>
    <message>
        <source>Site ID:</source>
        <translation>Seiten-ID:</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>HTTP Post Variables</source>
        <translation>HTTP-Post-Variablen</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Steuerung</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Register</translation>
    </message>
    <message>
        <source>Defaults for all sites</source>
        <translation>Vorgaben für alle Seiten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>First baseline</source>
        <translation>Erste Basis</translation>
    </message>
    <message>
        <source>How much the log holds of pages; the oldest are emptied first, and no page is stored while less than 1 GiB or 5 % of the disk is free</source>
        <translation>Wie viel das Log an Seiteninhalten hält; die ältesten werden zuerst geleert, und keiner wird gespeichert, solange weniger als 1 GiB oder 5 % des Datenträgers frei sind</translation>
    </message>
    <message>
        <source>Mail exchange at most</source>
        <translation>Mail-Austausch höchstens</translation>
    </message>
    <message>
        <source>New sites</source>
        <translation>Neue Seiten</translation>
    </message>
    <message>
        <source>Pages in the log at most</source>
        <translation>Seiteninhalte im Log höchstens</translation>
    </message>
    <message>
        <source>The longest time that handing over one mail may take, connecting included</source>
        <translation>Wie lange die Übergabe einer Mail höchstens dauern darf, mit dem Verbindungsaufbau</translation>
    </message>
    <message>
        <source>When a run takes on a site that was never checked</source>
        <translation>Wann ein Lauf eine Seite aufnimmt, die noch nie geprüft wurde</translation>
    </message>
    <message>
        <source>a mail server that stays silent is waited for without end</source>
        <translation>auf einen Mail-Server, der schweigt, wird ohne Ende gewartet</translation>
    </message>
    <message>
        <source>a site that was never checked is not taken on before the next Start</source>
        <translation>eine Seite, die noch nie geprüft wurde, wird erst beim nächsten Start aufgenommen</translation>
    </message>
    <message>
        <source>anything</source>
        <translation>alles</translation>
    </message>
    <message>
        <source>MiB</source>
        <translation>MiB</translation>
    </message>
    <message>
        <source>at the next start</source>
        <translation>beim nächsten Start</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>the log keeps the page of every failed check, and the disk may fill</source>
        <translation>das Log behält den Inhalt jeder gescheiterten Prüfung, und der Datenträger kann voll werden</translation>
    </message>
    <message>
        <source>the first answer becomes the baseline, also the text of a fetch that failed</source>
        <translation>die erste Antwort wird zur Basis, auch der Text eines gescheiterten Holens</translation>
    </message>
    <message>
        <source>Programs (*)</source>
        <translation>Programme (*)</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>sofort</translation>
    </message>
    <message>
        <source>pages only</source>
        <translation>nur gute Seiten</translation>
    </message>
    <message>
        <source>2 where parallel is more than 5, else there is no such limit</source>
        <translation>2, wo mehr als 5 Abfragen gleichzeitig laufen, sonst gibt es keine solche Grenze</translation>
    </message>
    <message>
        <source>250 where parallel is more than 5, else there is no such pause</source>
        <translation>250, wo mehr als 5 Abfragen gleichzeitig laufen, sonst gibt es keine solche Pause</translation>
    </message>
    <message>
        <source>How many pages of one host are fetched at the same time</source>
        <translation>Wie viele Seiten eines Rechners gleichzeitig geholt werden</translation>
    </message>
    <message>
        <source>How many sites are fetched at the same time; with &quot;auto&quot; as many as their answers bear</source>
        <translation>Wie viele Seiten gleichzeitig geholt werden; mit „automatisch“ so viele, wie ihre Antworten vertragen</translation>
    </message>
    <message>
        <source>Pause between requests to one host</source>
        <translation>Pause zwischen Abfragen an einen Rechner</translation>
    </message>
    <message>
        <source>Requests at a time to one host</source>
        <translation>Gleichzeitige Abfragen an einen Rechner</translation>
    </message>
    <message>
        <source>Requests at a time</source>
        <translation>Gleichzeitige Abfragen</translation>
    </message>
    <message>
        <source>The least time between the starts of two requests to one host</source>
        <translation>Die kürzeste Zeit zwischen dem Beginn zweier Abfragen an einen Rechner</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>five sites are fetched at a time</source>
        <translation>fünf Seiten werden gleichzeitig geholt</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>Millisekunden</translation>
    </message>
    <message>
        <source>Do You Want To Choose A Copy And Put It In Its Place?</source>
        <translation>Wollen Sie eine Kopie wählen und an ihre Stelle setzen?</translation>
    </message>
    <message>
        <source>The copy is in its place. The list before is kept as %1</source>
        <translation>Die Kopie ist an ihrer Stelle. Die Liste davor ist aufgehoben als %1</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>List: menu</source>
        <translation>Liste: Menü</translation>
    </message>
    <message>
        <source>What is done with the list as a whole</source>
        <translation>Was mit der Liste im Ganzen geschieht</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>Lists and bookmarks</source>
        <translation>Listen und Lesezeichen</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>5 s, 20 s</source>
        <translation>5 s, dann 20 s</translation>
    </message>
    <message>
        <source>A page that took longer is a warning, with a colour and an alert of its own; the site is up</source>
        <translation>Eine Seite, die länger gebraucht hat, ist eine Warnung mit eigener Farbe und eigenem Alarm; die Seite ist in Ordnung</translation>
    </message>
    <message>
        <source>Dated times that are quiet as well</source>
        <translation>Zeiten im Kalender, die ebenfalls ruhig sind</translation>
    </message>
    <message>
        <source>Down for real after</source>
        <translation>Wirklich gestört nach</translation>
    </message>
    <message>
        <source>Hosts of which at least one answers as long as this machine is online</source>
        <translation>Rechner, von denen wenigstens einer antwortet, solange dieser Rechner online ist</translation>
    </message>
    <message>
        <source>How long nothing is told; checks go on, and what is still so afterwards is told then</source>
        <translation>Wie lange nichts gemeldet wird; geprüft wird weiter, und was danach noch so ist, wird dann gemeldet</translation>
    </message>
    <message>
        <source>How many checks in a row must fail before it is told; the check is repeated in the same pass, at another address of the host if it has several</source>
        <translation>Wie viele Prüfungen in Folge fehlschlagen müssen, bevor es gemeldet wird; die Prüfung wird im selben Durchgang wiederholt, bei einer anderen Adresse des Servers, wenn er mehrere hat</translation>
    </message>
    <message>
        <source>In quiet hours</source>
        <translation>In den Ruhezeiten</translation>
    </message>
    <message>
        <source>Look again after</source>
        <translation>Noch einmal nachsehen nach</translation>
    </message>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>More changes between up and down within that time are told as one alert, and then nothing until the site has held still for as long</source>
        <translation>Mehr Wechsel zwischen in Ordnung und gestört in dieser Zeit werden als ein Alarm gemeldet, und dann nichts, bis die Seite ebenso lange stillgehalten hat</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Ruhezeiten</translation>
    </message>
    <message>
        <source>Slow: an answer after</source>
        <translation>Langsam: eine Antwort nach</translation>
    </message>
    <message>
        <source>Tell when it is up again</source>
        <translation>Melden, wenn sie wieder in Ordnung ist</translation>
    </message>
    <message>
        <source>The hours of the week in which nothing is told; what is still so is told when they end</source>
        <translation>Die Stunden der Woche, in denen nichts gemeldet wird; was dann noch so ist, wird an ihrem Ende gemeldet</translation>
    </message>
    <message>
        <source>The pauses before a failed check is repeated; the last one holds for all further ones</source>
        <translation>Die Pausen, bevor eine fehlgeschlagene Prüfung wiederholt wird; die letzte gilt für alle weiteren</translation>
    </message>
    <message>
        <source>This machine&apos;s own network</source>
        <translation>Das eigene Netz dieses Rechners</translation>
    </message>
    <message>
        <source>Unsteady: more changes than</source>
        <translation>Unruhig: mehr Wechsel als</translation>
    </message>
    <message>
        <source>What follows the first alert of an outage: one every so many minutes, one after 1, 2, 4 ... hours (&quot;growing&quot;), none (&quot;never&quot;) or one with every failed check</source>
        <translation>Was dem ersten Alarm einer Störung folgt: einer alle so viele Minuten, einer nach 1, 2, 4 ... Stunden (&quot;growing&quot;), keiner (&quot;never&quot;) oder einer mit jeder fehlgeschlagenen Prüfung</translation>
    </message>
    <message>
        <source>When nothing answers, ask whether this machine is online; as long as it is not, nothing is counted as down</source>
        <translation>Wenn nichts antwortet, nachsehen, ob dieser Rechner online ist; solange er es nicht ist, gilt nichts als gestört</translation>
    </message>
    <message>
        <source>Whether a site is checked in its quiet hours</source>
        <translation>Ob eine Seite in ihren Ruhezeiten geprüft wird</translation>
    </message>
    <message>
        <source>Whether anything is told at all; with &quot;off&quot; a site is checked and recorded, and nobody is told</source>
        <translation>Ob überhaupt etwas gemeldet wird; mit &quot;off&quot; wird eine Seite geprüft und aufgezeichnet, und niemand erfährt es</translation>
    </message>
    <message>
        <source>Whether one alert tells that a site is up again, how long it was down and why</source>
        <translation>Ob ein Alarm meldet, dass eine Seite wieder in Ordnung ist, wie lange sie gestört war und warum</translation>
    </message>
    <message>
        <source>While it stays down remind every</source>
        <translation>Solange sie gestört bleibt, erinnern alle</translation>
    </message>
    <message>
        <source>Witness hosts</source>
        <translation>Zeugen</translation>
    </message>
    <message>
        <source>&quot;until 2026-12-01 08:00&quot;, &quot;for good&quot; or &quot;no&quot;</source>
        <translation>&quot;until 2026-12-01 08:00&quot;, &quot;for good&quot; oder &quot;no&quot;</translation>
    </message>
    <message>
        <source>a failed check raises the alerts of the settings</source>
        <translation>eine fehlgeschlagene Prüfung löst die Alarme der Einstellungen aus</translation>
    </message>
    <message>
        <source>a number of changes and of minutes, as in &quot;5 in 30 min&quot;, or &quot;off&quot;</source>
        <translation>eine Zahl von Wechseln und von Minuten, etwa &quot;5 in 30 min&quot;, oder &quot;off&quot;</translation>
    </message>
    <message>
        <source>a site whose server cannot be reached is down, also when this machine is offline</source>
        <translation>eine Seite, deren Server nicht zu erreichen ist, gilt als gestört, auch wenn dieser Rechner offline ist</translation>
    </message>
    <message>
        <source>days and hours, as in &quot;Mon-Fri 22:00-6:00, Sat, Sun 0:00-24:00&quot; or &quot;daily 22-6&quot;, or &quot;none&quot;</source>
        <translation>Tage und Stunden (englisch), etwa &quot;Mon-Fri 22:00-6:00, Sat, Sun 0:00-24:00&quot; oder &quot;daily 22-6&quot;, oder &quot;none&quot;</translation>
    </message>
    <message>
        <source>do not check</source>
        <translation>nicht prüfen</translation>
    </message>
    <message>
        <source>each change is told for itself</source>
        <translation>jeder Wechsel wird für sich gemeldet</translation>
    </message>
    <message>
        <source>every check</source>
        <translation>jede Prüfung</translation>
    </message>
    <message>
        <source>every failed check is told</source>
        <translation>jede fehlgeschlagene Prüfung wird gemeldet</translation>
    </message>
    <message>
        <source>failures</source>
        <translation>Fehlschläge</translation>
    </message>
    <message>
        <source>growing</source>
        <translation>wachsend</translation>
    </message>
    <message>
        <source>hosts parted by commas, as in &quot;example.org, 192.0.2.1:53&quot;, or &quot;none&quot;</source>
        <translation>Rechner, durch Kommas getrennt, etwa &quot;example.org, 192.0.2.1:53&quot;, oder &quot;none&quot;</translation>
    </message>
    <message>
        <source>it does not matter how long an answer takes</source>
        <translation>es ist gleich, wie lange eine Antwort dauert</translation>
    </message>
    <message>
        <source>keep alerts</source>
        <translation>Alarme aufheben</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>no host is asked, the machine is online when it knows a way to the Internet</source>
        <translation>kein Rechner wird gefragt, dieser gilt als online, wenn er einen Weg ins Internet kennt</translation>
    </message>
    <message>
        <source>nobody is told that a site is up again</source>
        <translation>niemand erfährt, dass eine Seite wieder in Ordnung ist</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>sites are checked in quiet hours, too</source>
        <translation>Seiten werden auch in Ruhezeiten geprüft</translation>
    </message>
    <message>
        <source>the alerts are not paused</source>
        <translation>die Alarme pausieren nicht</translation>
    </message>
    <message>
        <source>the first failed check is told</source>
        <translation>die erste fehlgeschlagene Prüfung wird gemeldet</translation>
    </message>
    <message>
        <source>there are no quiet hours</source>
        <translation>es gibt keine Ruhezeiten</translation>
    </message>
    <message>
        <source>there is no maintenance</source>
        <translation>es gibt keine Wartung</translation>
    </message>
    <message>
        <source>times parted by semicolons, each perhaps with &quot;do not check&quot; or &quot;keep alerts&quot; and a note, as in &quot;2026-12-01 08:00 to 2026-12-01 12:00, do not check: new server&quot;, or &quot;none&quot;</source>
        <translation>Zeiten, durch Semikolons getrennt, jede vielleicht mit &quot;do not check&quot; oder &quot;keep alerts&quot; und einem Vermerk, etwa &quot;2026-12-01 08:00 to 2026-12-01 12:00, do not check: new server&quot;, oder &quot;none&quot;</translation>
    </message>
    <message>
        <source>up to ten pauses of 1 to 300 seconds, as in &quot;5 s, 20 s&quot;</source>
        <translation>bis zu zehn Pausen von 1 bis 300 Sekunden, etwa &quot;5 s, 20 s&quot;</translation>
    </message>
    <message>
        <source>&amp;Pause All</source>
        <translation>Alle &amp;pausieren</translation>
    </message>
    <message>
        <source>Pause and quiet hours of all sites</source>
        <translation>Pause und Ruhezeiten aller Seiten</translation>
    </message>
    <message>
        <source>Alarm and options of this site</source>
        <translation>Alarm und Optionen dieser Seite</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>What becomes the baseline of a site that has none; with &quot;pages only&quot; a fetch that failed, an error page of the server or a page that is suddenly less than half as long does not</source>
        <translation>Was zur Basis einer Site wird, die noch keine hat; bei „nur Seiten“ nicht ein gescheiterter Abruf, eine Fehlerseite des Servers oder eine plötzlich nicht halb so lange Seite</translation>
    </message>
    <message>
        <source>The channels by which its alerts leave</source>
        <translation>Die Kanäle, über die seine Alarme gehen</translation>
    </message>
    <message>
        <source>Through</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>names of channels parted by commas, as in &quot;phone, office mail&quot;, or &quot;none&quot;</source>
        <translation>Namen von Kanälen, durch Kommas getrennt, etwa „phone, office mail“, oder „none“</translation>
    </message>
    <message>
        <source>the channels that are there for all sites, if any is set up</source>
        <translation>die Kanäle, die für alle Sites da sind, falls einer eingerichtet ist</translation>
    </message>
    <message>
        <source>An address that is asked once a minute while a run is on, so that somebody notices when it is not</source>
        <translation>Eine Adresse, die einmal in der Minute angefragt wird, solange ein Lauf an ist, damit jemand merkt, wenn er es nicht ist</translation>
    </message>
    <message>
        <source>Heartbeat to</source>
        <translation>Lebenszeichen an</translation>
    </message>
    <message>
        <source>Test alert daily at</source>
        <translation>Probealarm um</translation>
    </message>
    <message>
        <source>When a message with the figures of the day leaves through the channels, each day that a run is on</source>
        <translation>Wann eine Nachricht mit den Zahlen des Tages über die Kanäle geht, an jedem Tag, an dem ein Lauf an ist</translation>
    </message>
    <message>
        <source>When an alert leaves that only tries the channels; one that does not arrive is told by the outbox</source>
        <translation>Wann ein Alarm ausgeht, der nur die Kanäle erprobt; einer, der nicht ankommt, wird vom Postausgang gemeldet</translation>
    </message>
    <message>
        <source>&quot;All is well&quot; daily at</source>
        <translation>„Alles in Ordnung“ um</translation>
    </message>
    <message>
        <source>a time of the day, as in &quot;8:00&quot;</source>
        <translation>eine Uhrzeit, etwa „8:00“</translation>
    </message>
    <message>
        <source>an address that begins with http:// or https://</source>
        <translation>eine Adresse, die mit http:// oder https:// beginnt</translation>
    </message>
    <message>
        <source>no alert is sent that only tries the channels</source>
        <translation>kein Alarm wird gesendet, der nur die Kanäle erprobt</translation>
    </message>
    <message>
        <source>nobody is told that a run is on</source>
        <translation>niemand erfährt, dass ein Lauf an ist</translation>
    </message>
    <message>
        <source>nothing is told while all is well</source>
        <translation>nichts wird gemeldet, solange alles in Ordnung ist</translation>
    </message>
    <message>
        <source>&amp;Outbox…</source>
        <translation>Post&amp;ausgang…</translation>
    </message>
    <message>
        <source>The ways by which alerts leave</source>
        <translation>Die Wege, auf denen Alarme hinausgehen</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>587, with TLS 465, without encryption 25</source>
        <translation>587, mit TLS 465, ohne Verschlüsselung 25</translation>
    </message>
    <message>
        <source>A mail through the mail server of your provider, or one of your own</source>
        <translation>Eine Mail über den Mailserver Ihres Anbieters oder einen eigenen</translation>
    </message>
    <message>
        <source>A notice of the desktop, while the window is open</source>
        <translation>Eine Meldung des Desktops, solange das Fenster offen ist</translation>
    </message>
    <message>
        <source>A program that is started, with what has happened in its command line</source>
        <translation>Ein Programm, das gestartet wird, mit dem Geschehenen in seiner Befehlszeile</translation>
    </message>
    <message>
        <source>A program that prints the token for xoauth2; it is run before each mail</source>
        <translation>Ein Programm, das das Token für xoauth2 ausgibt; es läuft vor jeder Mail</translation>
    </message>
    <message>
        <source>A request to an address of a service that tells people, as ntfy, Gotify or a chat</source>
        <translation>Eine Anfrage an die Adresse eines Dienstes, der Leuten Bescheid gibt, wie ntfy, Gotify oder ein Chat</translation>
    </message>
    <message>
        <source>A sound on this machine</source>
        <translation>Ein Klang auf diesem Rechner</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Attach the page</source>
        <translation>Seite anhängen</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Bundle from</source>
        <translation>Bündeln ab</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Desktop notice</source>
        <translation>Desktop-Meldung</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>From so many alerts of one pass on they leave as one message</source>
        <translation>Ab so vielen Alarmen eines Durchgangs gehen sie als eine Nachricht hinaus</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Further headers, one a line, as in &quot;Authorization: Bearer {secret}&quot;</source>
        <translation>Weitere Kopfzeilen, eine je Zeile, wie &quot;Authorization: Bearer {secret}&quot;</translation>
    </message>
    <message>
        <source>Headers</source>
        <translation>Kopfzeilen</translation>
    </message>
    <message>
        <source>How to log in; xoauth2 with a token, as some providers want it</source>
        <translation>Wie die Anmeldung geschieht; xoauth2 mit einem Token, wie es manche Anbieter wollen</translation>
    </message>
    <message>
        <source>Log-in</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Mail</translation>
    </message>
    <message>
        <source>POST</source>
        <translation>POST</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Klang</translation>
    </message>
    <message>
        <source>The .wav file that is played</source>
        <translation>Die .wav-Datei, die abgespielt wird</translation>
    </message>
    <message>
        <source>The command line, with the same placeholders as that of the settings</source>
        <translation>Die Befehlszeile, mit denselben Platzhaltern wie die der Einstellungen</translation>
    </message>
    <message>
        <source>The mail server, by its name or address</source>
        <translation>Der Mailserver, mit Namen oder Adresse</translation>
    </message>
    <message>
        <source>The method of the request</source>
        <translation>Die Methode der Anfrage</translation>
    </message>
    <message>
        <source>The name to log in with, often the mail address</source>
        <translation>Der Name für die Anmeldung, oft die Mailadresse</translation>
    </message>
    <message>
        <source>To</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Token command</source>
        <translation>Token-Befehl</translation>
    </message>
    <message>
        <source>Token</source>
        <translation>Token</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Web hook</source>
        <translation>Web-Hook</translation>
    </message>
    <message>
        <source>What is sent; placeholders are filled in, escaped for its form</source>
        <translation>Was gesendet wird; Platzhalter werden eingesetzt, passend zur Form geschützt</translation>
    </message>
    <message>
        <source>What the body is, for the escaping of what is filled in and the header that tells it</source>
        <translation>Was der Inhalt ist: danach wird Eingesetztes geschützt, und die Kopfzeile nennt es</translation>
    </message>
    <message>
        <source>Where the request goes; placeholders such as {secret} are filled in</source>
        <translation>Wohin die Anfrage geht; Platzhalter wie {secret} werden eingesetzt</translation>
    </message>
    <message>
        <source>Where the server listens</source>
        <translation>Wo der Server lauscht</translation>
    </message>
    <message>
        <source>Whether the line is encrypted: asked for after the greeting, from the first byte on, or not at all</source>
        <translation>Ob die Leitung verschlüsselt ist: nach der Begrüßung verlangt, vom ersten Byte an, oder gar nicht</translation>
    </message>
    <message>
        <source>Whether the whole page is attached</source>
        <translation>Ob die ganze Seite angehängt wird</translation>
    </message>
    <message>
        <source>Who is told</source>
        <translation>Wer Bescheid bekommt</translation>
    </message>
    <message>
        <source>Whose mail it is; most servers want the address of your own account here</source>
        <translation>Von wem die Mail ist; die meisten Server wollen hier die Adresse Ihres eigenen Kontos</translation>
    </message>
    <message>
        <source>alerts</source>
        <translation>Alarmen</translation>
    </message>
    <message>
        <source>each alert is a message of its own</source>
        <translation>jeder Alarm ist eine eigene Nachricht</translation>
    </message>
    <message>
        <source>form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>json</source>
        <translation>json</translation>
    </message>
    <message>
        <source>lines of a name, a colon and a value</source>
        <translation>Zeilen aus Name, Doppelpunkt und Wert</translation>
    </message>
    <message>
        <source>login</source>
        <translation>login</translation>
    </message>
    <message>
        <source>no header of its own</source>
        <translation>keine eigene Kopfzeile</translation>
    </message>
    <message>
        <source>none</source>
        <translation>–</translation>
    </message>
    <message>
        <source>one line of text</source>
        <translation>eine Zeile Text</translation>
    </message>
    <message>
        <source>one mail address or more, parted by commas, as in &quot;me@example.org, team@example.org&quot;</source>
        <translation>eine Mailadresse oder mehrere, durch Kommas getrennt, wie &quot;ich@example.org, team@example.org&quot;</translation>
    </message>
    <message>
        <source>one mail address</source>
        <translation>eine Mailadresse</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>plain</translation>
    </message>
    <message>
        <source>starttls</source>
        <translation>starttls</translation>
    </message>
    <message>
        <source>starttls: nothing but the greeting is sent before the line is encrypted</source>
        <translation>starttls: vor der Verschlüsselung wird nichts als die Begrüßung gesendet</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>the best way that the server offers</source>
        <translation>die beste Art, die der Server anbietet</translation>
    </message>
    <message>
        <source>the difference alone is in the mail</source>
        <translation>nur der Unterschied steht in der Mail</translation>
    </message>
    <message>
        <source>the password is used</source>
        <translation>das Passwort gilt</translation>
    </message>
    <message>
        <source>those of the system</source>
        <translation>die des Systems</translation>
    </message>
    <message>
        <source>tls</source>
        <translation>tls</translation>
    </message>
    <message>
        <source>xoauth2</source>
        <translation>xoauth2</translation>
    </message>
    <message>
        <source>{title}, a line end and {text}</source>
        <translation>{title}, ein Zeilenende und {text}</translation>
    </message>
    <message>
        <source>A file with the certificate authorities (PEM) to trust for this server, as for a certificate of your own</source>
        <translation>Eine Datei mit den Zertifizierungsstellen (PEM), denen für diesen Server vertraut wird, etwa bei einem eigenen Zertifikat</translation>
    </message>
    <message>
        <source>CA file</source>
        <translation>CA-Datei</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>the user, where that is an address; else the first address of who is told</source>
        <translation>der Benutzer, wenn er eine Adresse ist; sonst die erste Adresse derer, die benachrichtigt werden</translation>
    </message>
    <message>
        <source>without a log-in</source>
        <translation>ohne Anmeldung</translation>
    </message>
    <message>
        <source>List and details</source>
        <translation>Liste und Einzelheiten</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Whether it is kept for years when each site was up or down, and how long its answers took</source>
        <translation>Ob für Jahre festgehalten wird, wann jede Seite erreichbar oder gestört war und wie lange ihre Antworten dauerten</translation>
    </message>
    <message>
        <source>only the log tells of checks that are over</source>
        <translation>nur das Protokoll nennt vergangene Prüfungen</translation>
    </message>
    <message>
        <source>Do You Want To Replace The File %1?</source>
        <translation>Möchten Sie die Datei %1 ersetzen?</translation>
    </message>
    <message>
        <source>&amp;Add Addresses…</source>
        <translation>&amp;Adressen hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <source>Picture, for a web page</source>
        <translation>Bild für eine Webseite</translation>
    </message>
    <message>
        <source>Picture, for a mail</source>
        <translation>Bild für eine Mail</translation>
    </message>
    <message>
        <source>O&amp;riginal Order</source>
        <translation>U&amp;rsprüngliche Reihenfolge</translation>
    </message>
    <message>
        <source>A Clic&amp;k on a Row</source>
        <translation>Ein &amp;Klick auf eine Zeile</translation>
    </message>
    <message>
        <source>&amp;History of All Sites…</source>
        <translation>Ver&amp;lauf aller Seiten…</translation>
    </message>
    <message>
        <source>After how many days the history keeps only the sums of days and months, which stay as they are</source>
        <translation>Nach wie vielen Tagen der Verlauf nur noch die Summen der Tage und Monate behält, die bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>Hours of the history for</source>
        <translation>Stunden des Verlaufs für</translation>
    </message>
    <message>
        <source>days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>the history keeps each hour for good</source>
        <translation>der Verlauf behält jede Stunde für immer</translation>
    </message>
    <message>
        <source>Certificate: warn before it ends</source>
        <translation>Zertifikat: vor dem Ende warnen</translation>
    </message>
    <message>
        <source>So many days before the certificate of a site ends, or when a third of its lifetime is left, there is a warning, with a colour and an alert of its own; so there is an alert when another authority has issued it; the site is up</source>
        <translation>So viele Tage vor dem Ende des Zertifikats einer Seite, oder wenn noch ein Drittel seiner Laufzeit übrig ist, gibt es eine Warnung mit eigener Farbe und eigener Meldung; eine Meldung gibt es auch, wenn es eine andere Stelle ausgestellt hat; die Seite ist gut</translation>
    </message>
    <message>
        <source>numbers of days parted by commas, as in &quot;21, 7, 1&quot;, &quot;third&quot; for a third of its lifetime, or &quot;off&quot;</source>
        <translation>Anzahlen von Tagen mit Kommas dazwischen, wie in &quot;21, 7, 1&quot;, &quot;third&quot; für ein Drittel der Laufzeit, oder &quot;off&quot;</translation>
    </message>
    <message>
        <source>of a certificate it matters only whether it holds</source>
        <translation>bei einem Zertifikat zählt nur, ob es gilt</translation>
    </message>
    <message>
        <source>A file in which a run keeps figures of all sites for Prometheus, as its textfile collector reads them</source>
        <translation>Eine Datei, in der ein Lauf Zahlen aller Seiten für Prometheus hält, wie dessen Textfile-Collector sie liest</translation>
    </message>
    <message>
        <source>A folder in which a run keeps a page for others, index.html: which sites are up now, and 30 days of each</source>
        <translation>Ein Ordner, in dem ein Lauf eine Seite für andere hält, index.html: welche Seiten jetzt erreichbar sind, und 30 Tage jeder einzelnen</translation>
    </message>
    <message>
        <source>Metrics in</source>
        <translation>Messwerte in</translation>
    </message>
    <message>
        <source>Status page in</source>
        <translation>Statusseite in</translation>
    </message>
    <message>
        <source>figures leave by &quot;tarnwickctl metrics&quot; only</source>
        <translation>Zahlen gibt nur „tarnwickctl metrics“ aus</translation>
    </message>
    <message>
        <source>no page tells others how the sites stand</source>
        <translation>keine Seite sagt anderen, wie die Seiten stehen</translation>
    </message>
    <message>
        <source>Month&apos;s report</source>
        <translation>Monatsbericht</translation>
    </message>
    <message>
        <source>Whether a run makes a report of each month that has ended: as a file in the folder reports, and as a message by the channels that are on for all sites</source>
        <translation>Ob ein Lauf von jedem Monat, der vorbei ist, einen Bericht macht: als Datei im Ordner reports und als Nachricht über die Kanäle, die für alle Seiten an sind</translation>
    </message>
    <message>
        <source>a report of a month is made by &quot;tarnwickctl month-report&quot; only</source>
        <translation>einen Bericht von einem Monat macht nur „tarnwickctl month-report“</translation>
    </message>
</context>
<context>
    <name>tarnwick::AcceptDialog</name>
    <message>
        <source>Accept a Page</source>
        <translation>Seite übernehmen</translation>
    </message>
    <message>
        <source>What changed in site %1</source>
        <translation>Was sich an Seite %1 geändert hat</translation>
    </message>
    <message>
        <source>in &amp;place of the baseline</source>
        <translation>an&amp;stelle der Basis</translation>
    </message>
    <message>
        <source>&amp;beside it: either page is good</source>
        <translation>&amp;daneben: beide sind gut</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>This page becomes the baseline of site %1: %2 instead of %3.</source>
        <translation>Dieser Inhalt wird die Basis von Seite %1: %2 statt %3.</translation>
    </message>
    <message>
        <source>, 1 change.</source>
        <translation>, 1 Änderung.</translation>
    </message>
    <message>
        <source>, %1 changes.</source>
        <translation>, %1 Änderungen.</translation>
    </message>
</context>
<context>
    <name>tarnwick::AddressesDialog</name>
    <message>
        <source>Add Addresses</source>
        <translation>Adressen hinzufügen</translation>
    </message>
    <message>
        <source>Addresses, one a line</source>
        <translation>Adressen, eine je Zeile</translation>
    </message>
    <message>
        <source>Adding</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Addresses, &amp;one a line:</source>
        <translation>Adressen, &amp;eine je Zeile:</translation>
    </message>
    <message>
        <source>Paste or type addresses.</source>
        <translation>Fügen Sie Adressen ein oder tippen Sie welche.</translation>
    </message>
    <message>
        <source>%1 new</source>
        <translation>%1 neu</translation>
    </message>
    <message>
        <source>%1 there already</source>
        <translation>%1 schon da</translation>
    </message>
    <message>
        <source>1 is none</source>
        <translation>1 ist keine</translation>
    </message>
    <message>
        <source>%1 are none</source>
        <translation>%1 sind keine</translation>
    </message>
    <message>
        <source>1 address: %1</source>
        <translation>1 Adresse: %1</translation>
    </message>
    <message>
        <source>%1 addresses: %2</source>
        <translation>%1 Adressen: %2</translation>
    </message>
    <message>
        <source>&amp;Add %1</source>
        <translation>%1 &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Waiting for another program, which has the list locked ...</source>
        <translation>Warten auf ein anderes Programm, das die Liste gesperrt hat ...</translation>
    </message>
</context>
<context>
    <name>tarnwick::AlarmDetails</name>
    <message>
        <source>In detail</source>
        <translation>Im Einzelnen</translation>
    </message>
    <message>
        <source>Failures until it is down for real</source>
        <translation>Fehlschläge, bis sie wirklich aus ist</translation>
    </message>
    <message>
        <source>Look again after</source>
        <translation>Wieder nachsehen nach</translation>
    </message>
    <message>
        <source>The pauses before a failed check is repeated, as in &quot;5 s, 20 s&quot;; the last one holds for all further ones</source>
        <translation>Die Pausen, bis eine fehlgeschlagene Prüfung wiederholt wird, wie „5 s, 20 s“; die letzte gilt für alle weiteren</translation>
    </message>
    <message>
        <source>Down for real after</source>
        <translation>Wirklich aus nach</translation>
    </message>
    <message>
        <source>failures; look again after</source>
        <translation>Fehlschlägen; Pausen</translation>
    </message>
    <message>
        <source>A failed check is repeated at once; only when so many have failed in a row it is told</source>
        <translation>Eine fehlgeschlagene Prüfung wird gleich wiederholt; erst wenn so viele hintereinander fehlgeschlagen sind, wird es gemeldet</translation>
    </message>
    <message>
        <source>Tell me when it is up again</source>
        <translation>Melden, wenn sie wieder da ist</translation>
    </message>
    <message>
        <source>While it stays down</source>
        <translation>Solange sie aus bleibt</translation>
    </message>
    <message>
        <source>tell me at every failed check</source>
        <translation>jeden Fehlschlag melden</translation>
    </message>
    <message>
        <source>say no more</source>
        <translation>nichts mehr melden</translation>
    </message>
    <message>
        <source>remind me every</source>
        <translation>erinnern alle</translation>
    </message>
    <message>
        <source>remind me after 1, 2, 4 … hours</source>
        <translation>erinnern nach 1, 2, 4 … Stunden</translation>
    </message>
    <message>
        <source>Minutes between two reminders</source>
        <translation>Minuten zwischen zwei Erinnerungen</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Changes that are borne</source>
        <translation>Wechsel, die hingenommen werden</translation>
    </message>
    <message>
        <source>Minutes in which they are borne</source>
        <translation>Minuten, in denen sie hingenommen werden</translation>
    </message>
    <message>
        <source>Unsteady: over</source>
        <translation>Unruhig: über</translation>
    </message>
    <message>
        <source>changes in</source>
        <translation>Wechsel in</translation>
    </message>
    <message>
        <source>min are one alert</source>
        <translation>min sind eine Meldung</translation>
    </message>
    <message>
        <source>Milliseconds of a slow answer</source>
        <translation>Millisekunden einer langsamen Antwort</translation>
    </message>
    <message>
        <source>Slow: an answer after</source>
        <translation>Langsam: eine Antwort nach</translation>
    </message>
    <message>
        <source>is a warning, never &quot;down&quot;</source>
        <translation>ist eine Warnung, nie „aus“</translation>
    </message>
    <message>
        <source>Days before the certificate ends</source>
        <translation>Tage vor dem Ende des Zertifikats</translation>
    </message>
    <message>
        <source>One warning for each of these, as in &quot;21, 7, 1&quot;; &quot;third&quot; is a third of the certificate&apos;s lifetime</source>
        <translation>Eine Warnung für jede dieser Zahlen, wie in „21, 7, 1“; „third“ ist ein Drittel der Laufzeit des Zertifikats</translation>
    </message>
    <message>
        <source>Certificate: warn</source>
        <translation>Zertifikat: warnen</translation>
    </message>
    <message>
        <source>days before it ends</source>
        <translation>Tage vor seinem Ende</translation>
    </message>
    <message>
        <source>A site whose certificate ends soon, or is from another authority than before, is a warning, never &quot;down&quot;</source>
        <translation>Eine Seite, deren Zertifikat bald endet oder von einer anderen Stelle ist als zuvor, ist eine Warnung, nie „aus“</translation>
    </message>
</context>
<context>
    <name>tarnwick::AlarmPage</name>
    <message>
        <source>a channel that is gone</source>
        <translation>ein Kanal, den es nicht mehr gibt</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 um %2</translation>
    </message>
    <message>
        <source>%1 is waiting</source>
        <translation>%1 wartet noch</translation>
    </message>
    <message>
        <source>%1 was not delivered</source>
        <translation>%1 wurde nicht zugestellt</translation>
    </message>
    <message>
        <source>Failing since %1: %2 of %3 failures in a row.</source>
        <translation>Gestört seit %1: %2 von %3 Fehlern in Folge.</translation>
    </message>
    <message>
        <source>Down for real since %1.</source>
        <translation>Wirklich gestört seit %1.</translation>
    </message>
    <message>
        <source>Down for real since %1, %2 failures in a row.</source>
        <translation>Wirklich gestört seit %1, %2 Fehler in Folge.</translation>
    </message>
    <message>
        <source>Down with a page that is known.</source>
        <translation>Gestört mit einem Inhalt, der bekannt ist.</translation>
    </message>
    <message>
        <source>Unsteady: up and down all the time.</source>
        <translation>Unruhig: wechselt ständig zwischen gut und gestört.</translation>
    </message>
    <message>
        <source>Up, but slow.</source>
        <translation>Gut, aber langsam.</translation>
    </message>
    <message>
        <source>Unknown since %1, as this machine is offline.</source>
        <translation>Unbekannt seit %1, da dieser Rechner offline ist.</translation>
    </message>
    <message>
        <source>Paused %1: nothing is told.</source>
        <translation>Pause %1: Es wird nichts gemeldet.</translation>
    </message>
    <message>
        <source>It is a quiet time: nothing is told.</source>
        <translation>Es ist Ruhezeit: Es wird nichts gemeldet.</translation>
    </message>
    <message>
        <source>at %1</source>
        <translation>um %1</translation>
    </message>
    <message>
        <source>Never: its alerts are off.</source>
        <translation>Nie: Ihre Alarme sind aus.</translation>
    </message>
    <message>
        <source>When the next check fails.</source>
        <translation>Wenn die nächste Prüfung scheitert.</translation>
    </message>
    <message>
        <source>When the next %1 checks in a row fail.</source>
        <translation>Wenn die nächsten %1 Prüfungen in Folge scheitern.</translation>
    </message>
    <message>
        <source>With each check that fails, and when it is back.</source>
        <translation>Mit jeder Prüfung, die scheitert, und wenn sie wieder da ist.</translation>
    </message>
    <message>
        <source>With each check that fails.</source>
        <translation>Mit jeder Prüfung, die scheitert.</translation>
    </message>
    <message>
        <source>From %1 on, if it is still down, or when it is back.</source>
        <translation>Ab %1, wenn sie noch gestört ist, oder wenn sie wieder da ist.</translation>
    </message>
    <message>
        <source>From %1 on, if it is still down.</source>
        <translation>Ab %1, wenn sie noch gestört ist.</translation>
    </message>
    <message>
        <source>When it is back.</source>
        <translation>Wenn sie wieder da ist.</translation>
    </message>
    <message>
        <source>Nothing more until it has been up and fails again.</source>
        <translation>Nichts mehr, bis sie gut war und wieder scheitert.</translation>
    </message>
    <message>
        <source>When another wrong page comes, or none at all.</source>
        <translation>Wenn ein anderer falscher Inhalt kommt, oder gar keiner.</translation>
    </message>
    <message>
        <source>When it has been steady for a while.</source>
        <translation>Wenn sie eine Weile ruhig war.</translation>
    </message>
    <message>
        <source>When the quiet time or pause ends, if it is still so.</source>
        <translation>Wenn Ruhezeit oder Pause enden, falls es noch so ist.</translation>
    </message>
    <message>
        <source>a mail to %1</source>
        <translation>eine Mail an %1</translation>
    </message>
    <message>
        <source>a sound</source>
        <translation>ein Klang</translation>
    </message>
    <message>
        <source>a program</source>
        <translation>ein Programm</translation>
    </message>
    <message>
        <source>Nothing is set up: nobody is told.</source>
        <translation>Nichts ist eingerichtet: Niemand erfährt davon.</translation>
    </message>
    <message>
        <source>Now:</source>
        <translation>Jetzt:</translation>
    </message>
    <message>
        <source>Told last:</source>
        <translation>Zuletzt gemeldet:</translation>
    </message>
    <message>
        <source>Told next:</source>
        <translation>Nächste Meldung:</translation>
    </message>
    <message>
        <source>Through:</source>
        <translation>Über:</translation>
    </message>
    <message>
        <source>C&amp;hange…</source>
        <translation>Än&amp;dern…</translation>
    </message>
    <message>
        <source>Choose when and how is told of this site</source>
        <translation>Wählen, wann und wie von dieser Seite gemeldet wird</translation>
    </message>
    <message>
        <source>Up, but its certificate ends in 1 day.</source>
        <translation>Gut, aber das Zertifikat endet in 1 Tag.</translation>
    </message>
    <message>
        <source>Up, but its certificate ends in %1 days.</source>
        <translation>Gut, aber das Zertifikat endet in %1 Tagen.</translation>
    </message>
</context>
<context>
    <name>tarnwick::AlarmSection</name>
    <message>
        <source>Tell me</source>
        <translation>Melden</translation>
    </message>
    <message>
        <source>At every failed check (as the original)</source>
        <translation>Bei jeder Prüfung, die fehlschlägt (wie ursprünglich)</translation>
    </message>
    <message>
        <source>As in Defaults</source>
        <translation>Wie in Vorgaben</translation>
    </message>
    <message>
        <source>At every failed check</source>
        <translation>Bei jeder Prüfung, die fehlschlägt</translation>
    </message>
    <message>
        <source>Only when it is down for real,
and when it is back</source>
        <translation>Nur wenn sie wirklich aus ist,
und wenn sie wieder da ist</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>My own choice</source>
        <translation>Eigene Wahl</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Ruhezeiten</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Ändern…</translation>
    </message>
    <message>
        <source>The hours of the week, and dated windows, of this site</source>
        <translation>Die Stunden der Woche und Zeiten mit Datum für diese Seite</translation>
    </message>
    <message>
        <source>In quiet hours</source>
        <translation>In Ruhezeiten</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Tell again; stored with OK</source>
        <translation>Wieder melden; gespeichert mit OK</translation>
    </message>
    <message>
        <source>As in Defaults (at every failed check)</source>
        <translation>Wie in Vorgaben (jeder Fehlschlag)</translation>
    </message>
    <message>
        <source>As in Defaults (down for real, and back)</source>
        <translation>Wie in Vorgaben (wirklich aus, wieder da)</translation>
    </message>
    <message>
        <source>As in Defaults (never)</source>
        <translation>Wie in Vorgaben (nie)</translation>
    </message>
    <message>
        <source>As in Defaults (see the details)</source>
        <translation>Wie in Vorgaben (siehe im Einzelnen)</translation>
    </message>
    <message>
        <source>as for all sites: %1</source>
        <translation>wie bei allen: %1</translation>
    </message>
    <message>
        <source>Paused %1.</source>
        <translation>Pause %1.</translation>
    </message>
</context>
<context>
    <name>tarnwick::AlarmStrip</name>
    <message>
        <source>What would happen: 1 alert for an outage of %1 minutes (at every failed check: %2)</source>
        <translation>Was geschähe: 1 Meldung bei einem Ausfall von %1 Minuten (bei jedem Fehlschlag: %2)</translation>
    </message>
    <message>
        <source>What would happen: %3 alerts for an outage of %1 minutes (at every failed check: %2)</source>
        <translation>Was geschähe: %3 Meldungen bei einem Ausfall von %1 Minuten (bei jedem Fehlschlag: %2)</translation>
    </message>
    <message>
        <source>up</source>
        <translation>gut</translation>
    </message>
    <message>
        <source>up again</source>
        <translation>wieder da</translation>
    </message>
    <message>
        <source>%1 checks, nothing said</source>
        <translation>%1 Prüfungen, nichts gemeldet</translation>
    </message>
    <message>
        <source>%1 checks, %2 alerts</source>
        <translation>%1 Prüfungen, %2 Meldungen</translation>
    </message>
    <message>
        <source>fails</source>
        <translation>schlägt fehl</translation>
    </message>
    <message>
        <source>down for real</source>
        <translation>wirklich aus</translation>
    </message>
    <message>
        <source>looked again</source>
        <translation>nachgesehen</translation>
    </message>
    <message>
        <source>still down</source>
        <translation>noch aus</translation>
    </message>
    <message>
        <source>told %1 times</source>
        <translation>%1-mal gemeldet</translation>
    </message>
    <message>
        <source>you are told</source>
        <translation>gemeldet</translation>
    </message>
</context>
<context>
    <name>tarnwick::AlarmWords</name>
    <message>
        <source>Mon</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>Tue</source>
        <translation>Di</translation>
    </message>
    <message>
        <source>Wed</source>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Thu</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Fri</source>
        <translation>Fr</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>Sa</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>So</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>tomorrow %1</source>
        <translation>morgen %1</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>for good</source>
        <translation>auf Dauer</translation>
    </message>
    <message>
        <source>no quiet hours</source>
        <translation>keine Ruhezeiten</translation>
    </message>
    <message>
        <source>daily</source>
        <translation>täglich</translation>
    </message>
    <message>
        <source>do not check</source>
        <translation>nicht prüfen</translation>
    </message>
    <message>
        <source>check, and keep the alerts until they end</source>
        <translation>prüfen, aber erst danach melden</translation>
    </message>
</context>
<context>
    <name>tarnwick::AmberLine</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>tarnwick::BaselineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>A&amp;lles auswählen</translation>
    </message>
</context>
<context>
    <name>tarnwick::ChangeDialog</name>
    <message>
        <source>&amp;Check every</source>
        <translation>&amp;Prüfen alle</translation>
    </message>
    <message>
        <source>Minutes between two checks</source>
        <translation>Minuten zwischen zwei Prüfungen</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Läufe</translation>
    </message>
    <message>
        <source>Tell me</source>
        <translation>Mir melden</translation>
    </message>
    <message>
        <source>Change Site %1</source>
        <translation>Seite %1 ändern</translation>
    </message>
    <message>
        <source>Change %1 Sites</source>
        <translation>%1 Seiten ändern</translation>
    </message>
    <message>
        <source> minutes</source>
        <translation> Minuten</translation>
    </message>
    <message>
        <source>as it is</source>
        <translation>wie es ist</translation>
    </message>
    <message>
        <source>check them</source>
        <translation>prüfen sie</translation>
    </message>
    <message>
        <source>leave them out</source>
        <translation>lassen sie aus</translation>
    </message>
    <message>
        <source>&amp;Runs:</source>
        <translation>&amp;Läufe:</translation>
    </message>
    <message>
        <source>&amp;Tell me:</source>
        <translation>&amp;Mir melden:</translation>
    </message>
</context>
<context>
    <name>tarnwick::ChangeWindow</name>
    <message>
        <source>&amp;Accept…</source>
        <translation>Ü&amp;bernehmen…</translation>
    </message>
    <message>
        <source>Take the page of the latest check as the baseline</source>
        <translation>Den Inhalt der letzten Prüfung als Basis übernehmen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>What Changed in Site %1</source>
        <translation>Was sich an Seite %1 geändert hat</translation>
    </message>
    <message>
        <source>What changed in site %1</source>
        <translation>Was sich an Seite %1 geändert hat</translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelChoice</name>
    <message>
        <source>Through</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Send a test message through these channels</source>
        <translation>Eine Testnachricht über diese Kanäle senden</translation>
    </message>
    <message>
        <source>Test: send a test message through these channels</source>
        <translation>Testen: eine Testnachricht über diese Kanäle senden</translation>
    </message>
    <message>
        <source>All that are default for all sites</source>
        <translation>Alle, die Vorgabe für alle Seiten sind</translation>
    </message>
    <message>
        <source>As in Defaults</source>
        <translation>Wie in Vorgaben</translation>
    </message>
    <message>
        <source>No channel is set up: see Channels in the settings</source>
        <translation>Kein Kanal ist eingerichtet: siehe Kanäle in den Einstellungen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Defaults: %1</source>
        <translation>Vorgaben: %1</translation>
    </message>
    <message>
        <source>The channels by which the alerts leave: %1</source>
        <translation>Die Kanäle, über die die Alarme hinausgehen: %1</translation>
    </message>
    <message>
        <source>Testing …</source>
        <translation>Test läuft …</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>ok: %1</source>
        <translation>gut: %1</translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelForm</name>
    <message>
        <source>STARTTLS required</source>
        <translation>STARTTLS verlangt</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>none: nothing is encrypted</source>
        <translation>keine: nichts ist verschlüsselt</translation>
    </message>
    <message>
        <source>%1. It has to be set.</source>
        <translation>%1. Das muss gesetzt sein.</translation>
    </message>
    <message>
        <source>%1. Unset: %2.</source>
        <translation>%1. Nicht gesetzt: %2.</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>von selbst</translation>
    </message>
    <message>
        <source>each alone</source>
        <translation>jeder für sich</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>By which name sites and lists call it: one line without commas.</source>
        <translation>Unter welchem Namen ihn Seiten und Listen nennen: eine Zeile ohne Kommas.</translation>
    </message>
    <message>
        <source>Kept in the desktop&apos;s key ring</source>
        <translation>Liegt im Schlüsselbund des Desktops</translation>
    </message>
    <message>
        <source>Kept in a file only you can read</source>
        <translation>Liegt in einer Datei, die nur Sie lesen können</translation>
    </message>
    <message>
        <source>kept, type to replace it</source>
        <translation>liegt vor, zum Ersetzen tippen</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>Die Datei auswählen</translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelList</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>ok %1</source>
        <translation>gut %1</translation>
    </message>
    <message>
        <source>refused %1</source>
        <translation>abgelehnt %1</translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelMenu</name>
    <message>
        <source>%1. What is in capitals in the address is yours.</source>
        <translation>%1. Was in der Adresse groß geschrieben ist, ist das Ihre.</translation>
    </message>
    <message>
        <source>%1. The password or token: %2.</source>
        <translation>%1. Passwort oder Token: %2.</translation>
    </message>
    <message>
        <source>Any Other Service</source>
        <translation>Irgendein anderer Dienst</translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelTrial</name>
    <message>
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Send a test message with what stands in the fields, stored or not</source>
        <translation>Eine Testnachricht senden mit dem, was in den Feldern steht, gespeichert oder nicht</translation>
    </message>
    <message>
        <source>Answer to the test</source>
        <translation>Antwort auf den Test</translation>
    </message>
    <message>
        <source>Enter the password or token first.</source>
        <translation>Geben Sie zuerst Passwort oder Token ein.</translation>
    </message>
    <message>
        <source>Testing …</source>
        <translation>Test läuft …</translation>
    </message>
    <message>
        <source>Sent. Look whether it has arrived.</source>
        <translation>Gesendet. Sehen Sie nach, ob es angekommen ist.</translation>
    </message>
</context>
<context>
    <name>tarnwick::ChannelsPage</name>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Take the chosen channel away; stored with OK</source>
        <translation>Den gewählten Kanal wegnehmen; gespeichert mit OK</translation>
    </message>
    <message>
        <source>Default for all sites</source>
        <translation>Vorgabe für alle Seiten</translation>
    </message>
    <message>
        <source>It tells of all sites that name no channels of their own</source>
        <translation>Er meldet alle Seiten, die keine eigenen Kanäle nennen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Another way by which alerts leave</source>
        <translation>Ein weiterer Weg, auf dem Alarme hinausgehen</translation>
    </message>
    <message>
        <source>Mail now goes by: the original exchange, port 25. A channel of the kind mail replaces it.</source>
        <translation>Mail geht jetzt über: den ursprünglichen Versand, Port 25. Ein Kanal der Art Mail ersetzt ihn.</translation>
    </message>
    <message>
        <source>Do You Want To Remove The Channel %1?</source>
        <translation>Möchten Sie den Kanal %1 entfernen?</translation>
    </message>
    <message>
        <source>Alerts that wait for it are not delivered, and sites that name it tell nothing through it any more.</source>
        <translation>Alarme, die auf ihn warten, werden nicht zugestellt, und Seiten, die ihn nennen, melden nichts mehr über ihn.</translation>
    </message>
    <message>
        <source>Add a way by which alerts shall reach you: a mail through your provider, a web hook of a service for phones or a chat, a notice on this desktop.</source>
        <translation>Richten Sie einen Weg ein, auf dem Alarme Sie erreichen: eine Mail über Ihren Anbieter, einen Web-Hook eines Dienstes für Telefone oder eines Chats, eine Meldung auf diesem Desktop.</translation>
    </message>
    <message>
        <source>1 site names it.</source>
        <translation>1 Seite nennt ihn.</translation>
    </message>
    <message>
        <source>%1 sites name it.</source>
        <translation>%1 Seiten nennen ihn.</translation>
    </message>
    <message>
        <source>Mail now goes by: the channels of the kind mail. The original exchange is not used.</source>
        <translation>Mail geht jetzt über: die Kanäle der Art Mail. Der ursprüngliche Versand wird nicht benutzt.</translation>
    </message>
</context>
<context>
    <name>tarnwick::ClickRule</name>
    <message>
        <source>&amp;Opens the Site</source>
        <translation>Ö&amp;ffnet die Seite</translation>
    </message>
    <message>
        <source>&amp;Shows What Changed</source>
        <translation>&amp;Zeigt, was sich geändert hat</translation>
    </message>
    <message>
        <source>Then a double click and Enter open the site</source>
        <translation>Dann öffnen ein Doppelklick und die Eingabetaste die Seite</translation>
    </message>
</context>
<context>
    <name>tarnwick::ColumnChoice</name>
    <message>
        <source>&amp;Original Columns</source>
        <translation>&amp;Ursprüngliche Spalten</translation>
    </message>
</context>
<context>
    <name>tarnwick::ContentDialog</name>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Url: </source>
        <translation>URL: </translation>
    </message>
    <message>
        <source>Url</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>&amp;Load From Url</source>
        <translation>Von der URL &amp;laden</translation>
    </message>
    <message>
        <source>Fetch the page now; nothing is stored yet</source>
        <translation>Die Seite jetzt holen; gespeichert wird noch nichts</translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>Store this content and close</source>
        <translation>Diesen Inhalt speichern und schließen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close without storing (Esc)</source>
        <translation>Schließen, ohne zu speichern (Esc)</translation>
    </message>
    <message>
        <source>LOADING: Please Wait ...</source>
        <translation>LÄDT: Bitte warten ...</translation>
    </message>
    <message>
        <source>the content of site %1</source>
        <translation>der Inhalt von Seite %1</translation>
    </message>
    <message>
        <source>&amp;Holes</source>
        <translation>Lü&amp;cken</translation>
    </message>
    <message>
        <source>Show what may vary in the page, and choose it</source>
        <translation>Zeigen und wählen, was sich auf der Seite ändern darf</translation>
    </message>
</context>
<context>
    <name>tarnwick::ControlDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>In Progress ...</source>
        <translation>Läuft ...</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Gescheitert</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>the settings</source>
        <translation>die Einstellungen</translation>
    </message>
</context>
<context>
    <name>tarnwick::CountersDialog</name>
    <message>
        <source>counters</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Counter Options</source>
        <translation>Zähler zurücksetzen</translation>
    </message>
    <message>
        <source>Clear This &amp;Site&apos;s Counter</source>
        <translation>Zähler dieser &amp;Seite löschen</translation>
    </message>
    <message>
        <source>Clear Counter For &amp;All Sites</source>
        <translation>Zähler &amp;aller Seiten löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tarnwick::DatedWindowsModel</name>
    <message>
        <source>as in quiet hours</source>
        <translation>wie in Ruhezeiten</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
</context>
<context>
    <name>tarnwick::DatedWindowsTable</name>
    <message>
        <source>Dated windows</source>
        <translation>Zeiten mit Datum</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add a time, tomorrow from 8:00 on; change it there</source>
        <translation>Eine Zeit hinzufügen, morgen ab 8:00; dort ändern</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the chosen time (Del)</source>
        <translation>Die gewählte Zeit entfernen (Entf)</translation>
    </message>
</context>
<context>
    <name>tarnwick::DeliveryWords</name>
    <message>
        <source>does not answer</source>
        <translation>antwortet nicht</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>is still down</source>
        <translation>ist weiter ausgefallen</translation>
    </message>
    <message>
        <source>is up again</source>
        <translation>ist wieder da</translation>
    </message>
    <message>
        <source>is unsteady</source>
        <translation>ist unruhig</translation>
    </message>
    <message>
        <source>is slow</source>
        <translation>ist langsam</translation>
    </message>
    <message>
        <source>This machine is online again</source>
        <translation>Dieser Rechner ist wieder online</translation>
    </message>
    <message>
        <source>A test of Tarnwick</source>
        <translation>Ein Test von Tarnwick</translation>
    </message>
    <message>
        <source>The daily test alert</source>
        <translation>Der tägliche Probealarm</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>Alles ist gut</translation>
    </message>
    <message>
        <source>has a certificate that ends soon</source>
        <translation>hat ein Zertifikat, das bald endet</translation>
    </message>
    <message>
        <source>has a certificate from another authority</source>
        <translation>hat ein Zertifikat von einer anderen Stelle</translation>
    </message>
</context>
<context>
    <name>tarnwick::DetailsArea</name>
    <message>
        <source>Show &amp;What Changed</source>
        <translation>&amp;Änderung zeigen</translation>
    </message>
    <message>
        <source>&amp;Accept…</source>
        <translation>Ü&amp;bernehmen…</translation>
    </message>
    <message>
        <source>Accept A&amp;lso…</source>
        <translation>Auch übe&amp;rnehmen…</translation>
    </message>
    <message>
        <source>&amp;Undo Accept…</source>
        <translation>Übernahme &amp;zurücknehmen…</translation>
    </message>
    <message>
        <source>&amp;Same Change on Many Sites…</source>
        <translation>&amp;Gleiche Änderung auf vielen Seiten…</translation>
    </message>
    <message>
        <source>Site %1: the new page is the baseline.</source>
        <translation>Seite %1: Der neue Inhalt ist die Basis.</translation>
    </message>
    <message>
        <source>%1 sites: the new pages are the baselines.</source>
        <translation>%1 Seiten: Die neuen Inhalte sind die Basis.</translation>
    </message>
    <message>
        <source>&amp;Undo Accept of Site %1</source>
        <translation>Übernahme von Seite %1 &amp;zurücknehmen</translation>
    </message>
    <message>
        <source>&amp;Undo Accept of %1 Sites</source>
        <translation>Übernahme von %1 Seiten &amp;zurücknehmen</translation>
    </message>
</context>
<context>
    <name>tarnwick::DetailsPane</name>
    <message>
        <source>Site</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>&amp;Accept…</source>
        <translation>Ü&amp;bernehmen…</translation>
    </message>
    <message>
        <source>Ac&amp;knowledge</source>
        <translation>Be&amp;kannt</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Tell nothing of the site for a time</source>
        <translation>Eine Zeit lang nichts über die Seite melden</translation>
    </message>
    <message>
        <source>Close the details (F4)</source>
        <translation>Einzelheiten schließen (F4)</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Show it in a window of its own</source>
        <translation>In einem eigenen Fenster zeigen</translation>
    </message>
    <message>
        <source>Log of the site, the latest first</source>
        <translation>Log der Seite, das Neueste zuerst</translation>
    </message>
    <message>
        <source>What changed</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Details of site %1</source>
        <translation>Einzelheiten zu Seite %1</translation>
    </message>
    <message>
        <source>What changed in site %1</source>
        <translation>Was sich an Seite %1 geändert hat</translation>
    </message>
    <message>
        <source>Choose a site to see what changed.</source>
        <translation>Wählen Sie eine Seite, um zu sehen, was sich geändert hat.</translation>
    </message>
    <message>
        <source>There is no changed page to accept</source>
        <translation>Es gibt keinen geänderten Inhalt zu übernehmen</translation>
    </message>
    <message>
        <source>Fetch the page again, at once</source>
        <translation>Die Seite sofort noch einmal abrufen</translation>
    </message>
    <message>
        <source>Take the page of the latest check as the baseline</source>
        <translation>Den Inhalt der letzten Prüfung als Basis übernehmen</translation>
    </message>
    <message>
        <source>Alarm A&amp;gain</source>
        <translation>&amp;Wieder melden</translation>
    </message>
    <message>
        <source>There is nothing wrong to acknowledge</source>
        <translation>Es gibt nichts Falsches, das bekannt sein könnte</translation>
    </message>
    <message>
        <source>Tell of this page again, at each failed check</source>
        <translation>Diesen Inhalt wieder melden, bei jeder fehlgeschlagenen Prüfung</translation>
    </message>
    <message>
        <source>Known: say nothing while exactly this page stays</source>
        <translation>Bekannt: nichts melden, solange genau dieser Inhalt bleibt</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Fortsetzen</translation>
    </message>
    <message>
        <source>Tell of the site again</source>
        <translation>Wieder von der Seite melden</translation>
    </message>
    <message>
        <source>Let It Vary…</source>
        <translation>Darf sich ändern…</translation>
    </message>
    <message>
        <source>The change looks like %1, which always changes: it need not count</source>
        <translation>Die Änderung sieht aus wie %1; was sich immer ändert, muss nicht zählen</translation>
    </message>
    <message>
        <source>Site %1 is settled: its next check finds it up.</source>
        <translation>Seite %1 ist erledigt: Die nächste Prüfung findet sie gut.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Same Change…</source>
        <translation>Gleiche Änderung…</translation>
    </message>
    <message>
        <source>Show which of these sites have changed in the same way</source>
        <translation>Zeigt, welche dieser Seiten sich gleich geändert haben</translation>
    </message>
    <message>
        <source>%1 sites selected: %2 down</source>
        <translation>%1 Seiten ausgewählt: %2 schlecht</translation>
    </message>
    <message>
        <source>Choose one site</source>
        <translation>Wählen Sie eine Seite</translation>
    </message>
    <message>
        <source>&amp;Check Now</source>
        <translation>&amp;Jetzt prüfen</translation>
    </message>
</context>
<context>
    <name>tarnwick::DifferencePanel</name>
    <message>
        <source>Previous change</source>
        <translation>Vorige Änderung</translation>
    </message>
    <message>
        <source>Next change</source>
        <translation>Nächste Änderung</translation>
    </message>
    <message>
        <source>How both pages are laid out</source>
        <translation>Wie beide Inhalte angeordnet sind</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>Nebeneinander</translation>
    </message>
    <message>
        <source>Unified</source>
        <translation>Untereinander</translation>
    </message>
    <message>
        <source>Bytes (hex)</source>
        <translation>Bytes (hex)</translation>
    </message>
    <message>
        <source>Show blanks, tabs and line ends</source>
        <translation>Leerzeichen, Tabulatoren und Zeilenenden zeigen</translation>
    </message>
    <message>
        <source>What changed</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>more than %1 changes, shown as one</source>
        <translation>mehr als %1 Änderungen, als eine gezeigt</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 Änderung</translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation>%1 Änderungen</translation>
    </message>
    <message>
        <source>Change %1 of %2</source>
        <translation>Änderung %1 von %2</translation>
    </message>
    <message>
        <source>As seen</source>
        <translation>Wie gesehen</translation>
    </message>
</context>
<context>
    <name>tarnwick::DifferenceView</name>
    <message>
        <source>%1 equal bytes</source>
        <translation>%1 gleiche Bytes</translation>
    </message>
    <message>
        <source>%1 equal line</source>
        <translation>%1 gleiche Zeile</translation>
    </message>
    <message>
        <source>%1 equal lines</source>
        <translation>%1 gleiche Zeilen</translation>
    </message>
    <message>
        <source>Comparing …</source>
        <translation>Wird verglichen …</translation>
    </message>
    <message>
        <source>Both pages are empty.</source>
        <translation>Beide Inhalte sind leer.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>tarnwick::ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>&amp;Passwords of the sites</source>
        <translation>&amp;Passwörter der Seiten</translation>
    </message>
    <message>
        <source>&amp;Baselines: the pages that they are compared with</source>
        <translation>&amp;Basen: die Seiten, mit denen sie verglichen werden</translation>
    </message>
    <message>
        <source>&amp;History: when they were up or down, and how fast</source>
        <translation>&amp;Verlauf: wann sie erreichbar oder gestört waren, und wie schnell</translation>
    </message>
    <message>
        <source>CSV is for a spreadsheet. JSON has the channels, too, without their passwords and tokens.</source>
        <translation>CSV ist für Tabellenkalkulationen. JSON enthält auch die Kanäle, ohne ihre Passwörter und Token.</translation>
    </message>
    <message>
        <source>Writing the file</source>
        <translation>Datei wird geschrieben</translation>
    </message>
    <message>
        <source>&amp;Choose File…</source>
        <translation>&amp;Datei wählen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>What is set for each site is in the file, and on wish:</source>
        <translation>In der Datei steht, was für jede Seite eingestellt ist, und auf Wunsch:</translation>
    </message>
    <message>
        <source>CSV, for a spreadsheet</source>
        <translation>CSV, für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>JSON, with all that is set</source>
        <translation>JSON, mit allem, was eingestellt ist</translation>
    </message>
    <message>
        <source>Sites written: %1</source>
        <translation>Geschriebene Seiten: %1</translation>
    </message>
    <message>
        <source>Exported 1 site to %1</source>
        <translation>1 Seite exportiert nach %1</translation>
    </message>
    <message>
        <source>Exported %1 sites to %2</source>
        <translation>%1 Seiten exportiert nach %2</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>tarnwick::ExtraColumns</name>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>How the site stands, and since when</source>
        <translation>Wie es um die Seite steht, und seit wann</translation>
    </message>
    <message>
        <source>Last Result</source>
        <translation>Letztes Ergebnis</translation>
    </message>
    <message>
        <source>What the last check found</source>
        <translation>Was die letzte Prüfung ergab</translation>
    </message>
    <message>
        <source>Last Check</source>
        <translation>Letzte Prüfung</translation>
    </message>
    <message>
        <source>How long ago the site was checked</source>
        <translation>Wie lange die letzte Prüfung her ist</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Antwortzeit</translation>
    </message>
    <message>
        <source>How long the last check took</source>
        <translation>Wie lange die letzte Prüfung dauerte</translation>
    </message>
    <message>
        <source>Next Check</source>
        <translation>Nächste Prüfung</translation>
    </message>
    <message>
        <source>When the site is checked again</source>
        <translation>Wann die Seite wieder geprüft wird</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>The words by which the site is found: tag:X</source>
        <translation>Die Wörter, mit denen die Seite gefunden wird: tag:X</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>When the certificate of the site ends</source>
        <translation>Wann das Zertifikat der Seite endet</translation>
    </message>
    <message>
        <source>down, %1</source>
        <translation>schlecht, %1</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1, seit %2</translation>
    </message>
    <message>
        <source>the page differs</source>
        <translation>die Seite ist anders</translation>
    </message>
    <message>
        <source>as the baseline</source>
        <translation>wie die Basis</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>no run is on</source>
        <translation>kein Lauf</translation>
    </message>
    <message>
        <source>at the next Start</source>
        <translation>beim nächsten Start</translation>
    </message>
    <message>
        <source>after quiet hours</source>
        <translation>nach der Ruhezeit</translation>
    </message>
    <message>
        <source>ends %1</source>
        <translation>endet %1</translation>
    </message>
    <message>
        <source>%1, issued by %2</source>
        <translation>%1, ausgestellt von %2</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>vor %1 Min.</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>vor %1 Std.</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>vor %1 Tagen</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>in %1 min</source>
        <translation>in %1 Min.</translation>
    </message>
    <message>
        <source>in %1 h</source>
        <translation>in %1 Std.</translation>
    </message>
    <message>
        <source>in %1 days</source>
        <translation>in %1 Tagen</translation>
    </message>
    <message>
        <source>certificate: %1</source>
        <translation>Zertifikat: %1</translation>
    </message>
</context>
<context>
    <name>tarnwick::FirstSteps</name>
    <message>
        <source>Which page shall be watched?</source>
        <translation>Welche Seite soll überwacht werden?</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Start (F5)</source>
        <translation>Start (F5)</translation>
    </message>
    <message>
        <source>Choose how…</source>
        <translation>Wege wählen…</translation>
    </message>
    <message>
        <source>Add your first site</source>
        <translation>Die erste Seite hinzufügen</translation>
    </message>
    <message>
        <source>1. Which page shall be watched?</source>
        <translation>1. Welche Seite soll überwacht werden?</translation>
    </message>
    <message>
        <source>2. Start watching. The page as it is now becomes the baseline.</source>
        <translation>2. Die Überwachung beginnen. Die Seite, wie sie jetzt ist, wird die Basis.</translation>
    </message>
    <message>
        <source>3. Be told when it changes or does not answer.</source>
        <translation>3. Es erfahren, wenn sie sich ändert oder nicht antwortet.</translation>
    </message>
    <message>
        <source>This is no address of a page: enter one like https://example.org/</source>
        <translation>Das ist keine Adresse einer Seite: Geben Sie eine wie https://example.org/ ein</translation>
    </message>
    <message>
        <source>You can also add many addresses at once, or import a list: the button List.</source>
        <translation>Sie können auch viele Adressen auf einmal hinzufügen oder eine Liste importieren: der Knopf Liste.</translation>
    </message>
    <message>
        <source>Step 2 of 3: start watching.</source>
        <translation>Schritt 2 von 3: mit dem Beobachten beginnen.</translation>
    </message>
    <message>
        <source>Step 3 of 3: be told when something happens.</source>
        <translation>Schritt 3 von 3: sich melden lassen, wenn etwas geschieht.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Choose How…</source>
        <translation>Auswählen…</translation>
    </message>
</context>
<context>
    <name>tarnwick::HistoryPage</name>
    <message>
        <source>Answer times</source>
        <translation>Antwortzeiten</translation>
    </message>
    <message>
        <source>Outages, the latest first</source>
        <translation>Ausfälle, die letzten zuerst</translation>
    </message>
    <message>
        <source>Enter, or a double click, shows what came at the first failed check</source>
        <translation>Eingabe oder Doppelklick zeigt, was bei der ersten fehlgeschlagenen Prüfung kam</translation>
    </message>
    <message>
        <source>No history is kept: only the log tells how the sites have been.</source>
        <translation>Es wird kein Verlauf geführt: nur das Protokoll sagt, wie es den Seiten ging.</translation>
    </message>
    <message>
        <source>From now on keep for years when each site was up or down; the log is read into it</source>
        <translation>Von jetzt an über Jahre festhalten, wann jede Seite verfügbar war; das Protokoll wird übernommen</translation>
    </message>
    <message>
        <source>Which periods are shown</source>
        <translation>Welche Zeiträume gezeigt werden</translation>
    </message>
    <message>
        <source>All periods</source>
        <translation>Alle Zeiträume</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Sichern…</translation>
    </message>
    <message>
        <source>Write the stripes into a picture, SVG or PNG</source>
        <translation>Die Streifen in ein Bild schreiben, SVG oder PNG</translation>
    </message>
    <message>
        <source>Median %1, slowest %2</source>
        <translation>Median %1, längste %2</translation>
    </message>
    <message>
        <source>Of the answers of %1</source>
        <translation>Der Antworten aus: %1</translation>
    </message>
    <message>
        <source>Keep th&amp;e History</source>
        <translation>&amp;Verlauf führen</translation>
    </message>
</context>
<context>
    <name>tarnwick::HistoryWindow</name>
    <message>
        <source>Filter the sites</source>
        <translation>Seiten filtern</translation>
    </message>
    <message>
        <source>Which period is shown</source>
        <translation>Welcher Zeitraum gezeigt wird</translation>
    </message>
    <message>
        <source>Sites, the worst first</source>
        <translation>Seiten, die schlechteste zuerst</translation>
    </message>
    <message>
        <source>History of All Sites</source>
        <translation>Verlauf aller Seiten</translation>
    </message>
    <message>
        <source>Filter: down, never, tag:shop …</source>
        <translation>Filter: down, never, tag:shop …</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Sichern…</translation>
    </message>
    <message>
        <source>Write the stripes into a picture, SVG or PNG</source>
        <translation>Die Streifen in ein Bild schreiben, SVG oder PNG</translation>
    </message>
    <message>
        <source>Enter, or a double click, shows the history of a site alone</source>
        <translation>Eingabe oder Doppelklick zeigt den Verlauf einer Seite allein</translation>
    </message>
    <message>
        <source>%1 of %2 …</source>
        <translation>%1 von %2 …</translation>
    </message>
    <message>
        <source>1 site</source>
        <translation>1 Seite</translation>
    </message>
    <message>
        <source>%1 sites</source>
        <translation>%1 Seiten</translation>
    </message>
    <message>
        <source>History of All Sites, %1</source>
        <translation>Verlauf aller Seiten, %1</translation>
    </message>
</context>
<context>
    <name>tarnwick::HoleTableModel</name>
    <message>
        <source>digits</source>
        <translation>Ziffern</translation>
    </message>
    <message>
        <source>hex</source>
        <translation>hexadezimal</translation>
    </message>
    <message>
        <source>base64</source>
        <translation>Base64</translation>
    </message>
    <message>
        <source>letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>time or date</source>
        <translation>Zeit oder Datum</translation>
    </message>
    <message>
        <source>one of a list</source>
        <translation>eins aus einer Liste</translation>
    </message>
    <message>
        <source>words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>anything</source>
        <translation>irgendetwas</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>nirgends</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>place not found</source>
        <translation>Stelle nicht gefunden</translation>
    </message>
    <message>
        <source>The text around it is not in the baseline any more. OK drops it; it comes back if you undo the edit.</source>
        <translation>Der Text darum herum steht nicht mehr in der Basis. OK verwirft sie; sie kommt wieder, wenn die Änderung zurückgenommen wird.</translation>
    </message>
    <message>
        <source>Not known: there is no page yet, or it differs from the baseline before this place.</source>
        <translation>Nicht bekannt: Es gibt noch keine Seite, oder sie weicht vor dieser Stelle von der Basis ab.</translation>
    </message>
    <message>
        <source>%1; separators do not count</source>
        <translation>%1; Trennzeichen zählen nicht</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Last seen</source>
        <translation>Zuletzt gesehen</translation>
    </message>
    <message>
        <source>%1: proposed. OK stores it, Remove drops it.</source>
        <translation>%1: vorgeschlagen. OK speichert es, Entfernen verwirft es.</translation>
    </message>
    <message>
        <source>%1, proposed</source>
        <translation>%1, vorgeschlagen</translation>
    </message>
</context>
<context>
    <name>tarnwick::HolesPanel</name>
    <message>
        <source>What may vary</source>
        <translation>Was sich ändern darf</translation>
    </message>
    <message>
        <source>May &amp;Vary Here</source>
        <translation>&amp;Darf sich ändern</translation>
    </message>
    <message>
        <source>Let the text that is selected on the left vary (Ctrl+M)</source>
        <translation>Der links markierte Text darf sich ändern (Strg+M)</translation>
    </message>
    <message>
        <source>L&amp;earn…</source>
        <translation>Ler&amp;nen…</translation>
    </message>
    <message>
        <source>Fetch the page several times, and see what varies</source>
        <translation>Die Seite mehrmals abrufen und sehen, was sich ändert</translation>
    </message>
    <message>
        <source>&amp;Rules…</source>
        <translation>&amp;Regeln…</translation>
    </message>
    <message>
        <source>Compare only parts of the page, or leave parts out</source>
        <translation>Nur Teile der Seite vergleichen oder Teile auslassen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Watch the chosen place again (Del)</source>
        <translation>Die gewählte Stelle wieder überwachen (Entf)</translation>
    </message>
    <message>
        <source>The page of the latest check; what is left out is shaded</source>
        <translation>Die Seite der letzten Prüfung; Ausgelassenes ist schattiert</translation>
    </message>
    <message>
        <source>The baseline; what is left out is shaded</source>
        <translation>Die Basis; Ausgelassenes ist schattiert</translation>
    </message>
    <message>
        <source>What may vary (%1 stays watched)</source>
        <translation>Was sich ändern darf (%1 bleiben überwacht)</translation>
    </message>
    <message>
        <source>Only %1 stays watched</source>
        <translation>Nur %1 bleiben überwacht</translation>
    </message>
    <message>
        <source>&amp;Rules (%1)…</source>
        <translation>&amp;Regeln (%1)…</translation>
    </message>
    <message>
        <source>Looking at the difference from the latest page …</source>
        <translation>Der Unterschied zur letzten Seite wird geprüft …</translation>
    </message>
    <message>
        <source>The latest page does not differ.</source>
        <translation>Die letzte Seite weicht nicht ab.</translation>
    </message>
    <message>
        <source>Line %1 differs, and nothing of it looks like what always changes.</source>
        <translation>Zeile %1 weicht ab, und nichts davon sieht nach etwas aus, das sich immer ändert.</translation>
    </message>
    <message>
        <source>%1 Line %2 differs as well: it stays watched.</source>
        <translation>%1 Auch Zeile %2 weicht ab: sie bleibt überwacht.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>%1. %2 stays watched.</source>
        <translation>%1. %2 bleiben überwacht.</translation>
    </message>
</context>
<context>
    <name>tarnwick::ImportDialog</name>
    <message>
        <source>Import %1</source>
        <translation>%1 importieren</translation>
    </message>
    <message>
        <source>Kind of file</source>
        <translation>Art der Datei</translation>
    </message>
    <message>
        <source>As its content shows</source>
        <translation>Wie ihr Inhalt zeigt</translation>
    </message>
    <message>
        <source>CSV of Tarnwick</source>
        <translation>CSV von Tarnwick</translation>
    </message>
    <message>
        <source>JSON of Tarnwick</source>
        <translation>JSON von Tarnwick</translation>
    </message>
    <message>
        <source>List of addresses</source>
        <translation>Liste von Adressen</translation>
    </message>
    <message>
        <source>Bookmarks of a browser</source>
        <translation>Lesezeichen eines Browsers</translation>
    </message>
    <message>
        <source>OPML</source>
        <translation>OPML</translation>
    </message>
    <message>
        <source>List of urlwatch</source>
        <translation>Liste von urlwatch</translation>
    </message>
    <message>
        <source>List or backup of changedetection.io</source>
        <translation>Liste oder Sicherung von changedetection.io</translation>
    </message>
    <message>
        <source>Jet database of these tables</source>
        <translation>Jet-Datenbank mit diesen Tabellen</translation>
    </message>
    <message>
        <source>Reading the file</source>
        <translation>Lesen der Datei</translation>
    </message>
    <message>
        <source>What is not taken over</source>
        <translation>Was nicht übernommen wird</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Kind of file:</source>
        <translation>&amp;Art der Datei:</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <source>What kind of file this is does not show in its content. Choose it above, or see whether it is the right one.</source>
        <translation>Was für eine Datei das ist, zeigt ihr Inhalt nicht. Wählen Sie es oben, oder sehen Sie nach, ob es die richtige ist.</translation>
    </message>
    <message>
        <source>Nothing can be imported. Faults of the file: %1.</source>
        <translation>Es kann nichts importiert werden. Fehler der Datei: %1.</translation>
    </message>
    <message>
        <source>New sites: %1. To change: %2. There already: %3. Not taken over, and named below: %4.</source>
        <translation>Neue Seiten: %1. Zu ändern: %2. Schon da: %3. Nicht übernommen und unten genannt: %4.</translation>
    </message>
    <message>
        <source>Comparing with the list ...</source>
        <translation>Vergleiche mit der Liste ...</translation>
    </message>
    <message>
        <source>Taking the sites into the list ...</source>
        <translation>Übernehme die Seiten in die Liste ...</translation>
    </message>
    <message>
        <source>Waiting for another program, which has the list locked ...</source>
        <translation>Warte auf ein anderes Programm, das die Liste gesperrt hat ...</translation>
    </message>
    <message>
        <source>Sites added: %1. Changed: %2. What was not taken over is named below.</source>
        <translation>Seiten hinzugefügt: %1. Geändert: %2. Was nicht übernommen wurde, steht unten.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>tarnwick::Lamp</name>
    <message>
        <source>Lamp &quot;%1&quot;, bar %2</source>
        <translation>Lampe „%1“, Balken %2</translation>
    </message>
    <message>
        <source>%1: lit</source>
        <translation>%1: an</translation>
    </message>
    <message>
        <source>%1: not lit</source>
        <translation>%1: aus</translation>
    </message>
</context>
<context>
    <name>tarnwick::LatencyView</name>
    <message>
        <source>Answer times: nothing is known</source>
        <translation>Antwortzeiten: nichts bekannt</translation>
    </message>
    <message>
        <source>Answer times: median %1, 95 of 100 within %2, slowest %3</source>
        <translation>Antwortzeiten: Median %1, 95 von 100 binnen %2, längste %3</translation>
    </message>
    <message>
        <source>Up to %1 (line: median, dashed: 95 of 100)</source>
        <translation>Bis %1 (Linie: Median, gestrichelt: 95 von 100)</translation>
    </message>
    <message>
        <source>%1: median %2, 95 of 100 within %3, slowest %4</source>
        <translation>%1: Median %2, 95 von 100 binnen %3, längste %4</translation>
    </message>
</context>
<context>
    <name>tarnwick::LearnDialog</name>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>The baseline has no place for: %1.</source>
        <translation>Die Basis hat keine Stelle für: %1.</translation>
    </message>
    <message>
        <source>The page differs from the baseline also in line %1: take the page as it is now as the baseline first.</source>
        <translation>Die Seite weicht auch in Zeile %1 von der Basis ab: Nehmen Sie zuerst die Seite, wie sie jetzt ist, als Basis.</translation>
    </message>
    <message>
        <source>Learn What Varies</source>
        <translation>Lernen, was sich ändert</translation>
    </message>
    <message>
        <source>Fetched</source>
        <translation>Abgerufen</translation>
    </message>
    <message>
        <source>%v of %m</source>
        <translation>%v von %m</translation>
    </message>
    <message>
        <source>The page is fetched several times. What differs from one time to another is shown then, and nothing is stored yet.</source>
        <translation>Die Seite wird mehrmals abgerufen. Was sich dabei unterscheidet, wird dann gezeigt; gespeichert wird noch nichts.</translation>
    </message>
    <message>
        <source>&amp;Take These</source>
        <translation>Über&amp;nehmen</translation>
    </message>
    <message>
        <source>Let these places vary; OK of the content stores them</source>
        <translation>Diese Stellen dürfen sich ändern; OK des Inhalts speichert sie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop fetching, and close without a change (Esc)</source>
        <translation>Nicht weiter abrufen und ohne Änderung schließen (Esc)</translation>
    </message>
    <message>
        <source>Fetch so many times</source>
        <translation>So oft abrufen</translation>
    </message>
    <message>
        <source>&amp;now</source>
        <translation>&amp;jetzt</translation>
    </message>
    <message>
        <source>&amp;over</source>
        <translation>&amp;über</translation>
    </message>
    <message>
        <source>over so long a time</source>
        <translation>über so lange Zeit</translation>
    </message>
    <message>
        <source>10 minutes</source>
        <translation>10 Minuten</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>6 hours</source>
        <translation>6 Stunden</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>Fetch the page that often</source>
        <translation>Die Seite so oft abrufen</translation>
    </message>
    <message>
        <source>&amp;Fetch</source>
        <translation>&amp;Abrufen</translation>
    </message>
    <message>
        <source>times</source>
        <translation>Mal</translation>
    </message>
    <message>
        <source>Nothing was learnt.</source>
        <translation>Es wurde nichts gelernt.</translation>
    </message>
    <message>
        <source>Fetching the page …</source>
        <translation>Die Seite wird abgerufen …</translation>
    </message>
    <message>
        <source>Nothing varies: the page was the same each time.</source>
        <translation>Nichts ändert sich: Die Seite war jedes Mal dieselbe.</translation>
    </message>
    <message>
        <source>1 place: %1. %2 of the page stays watched.</source>
        <translation>1 Stelle: %1. %2 der Seite bleiben überwacht.</translation>
    </message>
    <message>
        <source>%1 places: %2. %3 of the page stays watched.</source>
        <translation>%1 Stellen: %2. %3 der Seite bleiben überwacht.</translation>
    </message>
    <message>
        <source>Looking at what varies …</source>
        <translation>Es wird geprüft, was sich ändert …</translation>
    </message>
</context>
<context>
    <name>tarnwick::LogList</name>
    <message>
        <source>up</source>
        <translation>gut</translation>
    </message>
    <message>
        <source>down</source>
        <translation>ausgefallen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Ursache</translation>
    </message>
</context>
<context>
    <name>tarnwick::MailWayHint</name>
    <message>
        <source>Channels…</source>
        <translation>Kanäle…</translation>
    </message>
    <message>
        <source>This server is not used; mail goes by:</source>
        <translation>Dieser Server wird nicht benutzt; Mail geht über:</translation>
    </message>
    <message>
        <source>With a log-in, to a phone or to a chat:</source>
        <translation>Mit Anmeldung, auf ein Telefon oder in einen Chat:</translation>
    </message>
</context>
<context>
    <name>tarnwick::Master</name>
    <message>
        <source>Tarnwick web-site monitor. Copyright © the Tarnwick developers.</source>
        <translation>Tarnwick überwacht Webseiten. Copyright © die Entwickler von Tarnwick.</translation>
    </message>
    <message>
        <source>Your data: %1</source>
        <translation>Ihre Daten: %1</translation>
    </message>
    <message>
        <source>%1 %2 keeps your sites and settings in the folder %3</source>
        <translation>%1 %2 bewahrt Ihre Seiten und Einstellungen im Ordner %3 auf</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Die Einstellungen ändern</translation>
    </message>
    <message>
        <source>The settings are kept in the table &quot;control&quot; of the database; this window cannot change them</source>
        <translation>Die Einstellungen stehen in der Tabelle „control“ der Datenbank; dieses Fenster kann sie nicht ändern</translation>
    </message>
    <message>
        <source>These changes are not stored: %1.

Do You Want To Discard Them And Close %2?</source>
        <translation>Diese Änderungen sind nicht gespeichert: %1.

Möchten Sie sie verwerfen und %2 schließen?</translation>
    </message>
</context>
<context>
    <name>tarnwick::NewPostVar</name>
    <message>
        <source>Add / Edit Post Variable</source>
        <translation>Post-Variable hinzufügen / ändern</translation>
    </message>
    <message>
        <source>HTTP Post Variables</source>
        <translation>HTTP-Post-Variablen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>enter name here</source>
        <translation>hier Namen eingeben</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>enter value here</source>
        <translation>hier Wert eingeben</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>&amp;Value</source>
        <translation>&amp;Wert</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>Än&amp;dern</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>This variable was changed or removed by another program. Press Cancel, and look at the list.</source>
        <translation>Diese Variable wurde von einem anderen Programm geändert oder entfernt. Drücken Sie Cancel und sehen Sie sich die Liste an.</translation>
    </message>
    <message>
        <source>a variable of site %1</source>
        <translation>eine Variable von Seite %1</translation>
    </message>
</context>
<context>
    <name>tarnwick::NoticeButton</name>
    <message>
        <source>Esc puts it away</source>
        <translation>Esc räumt es weg</translation>
    </message>
</context>
<context>
    <name>tarnwick::Notices</name>
    <message>
        <source>1 site is unwatched</source>
        <translation>1 Seite ist unbeobachtet</translation>
    </message>
    <message>
        <source>%1 sites are unwatched</source>
        <translation>%1 Seiten sind unbeobachtet</translation>
    </message>
    <message>
        <source>1 site is unwatched: no run is on</source>
        <translation>1 Seite ist unbeobachtet: Es ist kein Lauf im Gange</translation>
    </message>
    <message>
        <source>%1 sites are unwatched: no run is on</source>
        <translation>%1 Seiten sind unbeobachtet: Es ist kein Lauf im Gange</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>1 alert was not delivered: %1</source>
        <translation>1 Alarm wurde nicht zugestellt: %1</translation>
    </message>
    <message>
        <source>%1 alerts were not delivered: %2</source>
        <translation>%1 Alarme wurden nicht zugestellt: %2</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>1 alert was not delivered.</source>
        <translation>1 Alarm wurde nicht zugestellt.</translation>
    </message>
    <message>
        <source>%1 alerts were not delivered.</source>
        <translation>%1 Alarme wurden nicht zugestellt.</translation>
    </message>
    <message>
        <source>The last %1 of them:</source>
        <translation>Die letzten %1 davon:</translation>
    </message>
    <message>
        <source>Site %1, %2: %3</source>
        <translation>Seite %1, %2: %3</translation>
    </message>
    <message>
        <source>tomorrow %1</source>
        <translation>morgen %1</translation>
    </message>
    <message>
        <source>This machine is offline since %1. Nothing is counted as down.</source>
        <translation>Dieser Rechner ist seit %1 offline. Nichts gilt als gestört.</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>Alerts are paused until %1.</source>
        <translation>Alarme pausieren bis %1.</translation>
    </message>
    <message>
        <source>Alerts are paused for good.</source>
        <translation>Alarme pausieren auf Dauer.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>No alert can be delivered: %1</source>
        <translation>Kein Alarm kann zugestellt werden: %1</translation>
    </message>
    <message>
        <source>1 alert is waiting: %1</source>
        <translation>1 Alarm wartet: %1</translation>
    </message>
    <message>
        <source>%1 alerts are waiting: %2</source>
        <translation>%1 Alarme warten: %2</translation>
    </message>
    <message>
        <source>Outbox…</source>
        <translation>Postausgang…</translation>
    </message>
    <message>
        <source>The daily test alert has not arrived through %1.</source>
        <translation>Der tägliche Probealarm ist über %1 nicht angekommen.</translation>
    </message>
    <message>
        <source>The daily test alert has not arrived through %1: %2</source>
        <translation>Der tägliche Probealarm ist über %1 nicht angekommen: %2</translation>
    </message>
    <message>
        <source>The heartbeat is not taken: %1</source>
        <translation>Das Lebenszeichen wird nicht angenommen: %1</translation>
    </message>
    <message>
        <source>The daily messages cannot leave: no channel is on for all sites.</source>
        <translation>Die täglichen Nachrichten können nicht hinaus: Kein Kanal ist für alle Seiten eingeschaltet.</translation>
    </message>
    <message>
        <source>Channels…</source>
        <translation>Kanäle…</translation>
    </message>
</context>
<context>
    <name>tarnwick::OptionForm</name>
    <message>
        <source>on</source>
        <translation>an</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>As the original</source>
        <translation>Wie im Original</translation>
    </message>
    <message>
        <source>As in Defaults</source>
        <translation>Wie in Vorgaben</translation>
    </message>
    <message>
        <source>There is nothing to be chosen here.</source>
        <translation>Hier gibt es nichts zu wählen.</translation>
    </message>
    <message>
        <source>%1. As the original: %2.</source>
        <translation>%1. Wie im Original: %2.</translation>
    </message>
    <message>
        <source>This machine&apos;s own network</source>
        <translation>Das eigene Netz dieses Rechners</translation>
    </message>
    <message>
        <source>A run</source>
        <translation>Ein Lauf</translation>
    </message>
    <message>
        <source>For others</source>
        <translation>Für andere</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Figures for Prometheus</source>
        <translation>Zahlen für Prometheus</translation>
    </message>
</context>
<context>
    <name>tarnwick::OutageList</name>
    <message>
        <source>Until %1</source>
        <translation>Bis %1</translation>
    </message>
    <message>
        <source>It is on.</source>
        <translation>Er dauert an.</translation>
    </message>
    <message>
        <source>1 check has failed</source>
        <translation>1 Prüfung ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 checks have failed</source>
        <translation>%1 Prüfungen sind fehlgeschlagen</translation>
    </message>
    <message>
        <source>Down since</source>
        <translation>Ausgefallen seit</translation>
    </message>
    <message>
        <source>For</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Ursache</translation>
    </message>
</context>
<context>
    <name>tarnwick::OutboxDialog</name>
    <message>
        <source>Alerts</source>
        <translation>Alarme</translation>
    </message>
    <message>
        <source>Outbox</source>
        <translation>Postausgang</translation>
    </message>
    <message>
        <source>Nothing is waiting.</source>
        <translation>Nichts wartet.</translation>
    </message>
    <message>
        <source>Nothing has been sent yet.</source>
        <translation>Noch nichts wurde gesendet.</translation>
    </message>
    <message>
        <source>Nothing was given up.</source>
        <translation>Nichts wurde aufgegeben.</translation>
    </message>
    <message>
        <source>&amp;Retry Now</source>
        <translation>&amp;Jetzt versuchen</translation>
    </message>
    <message>
        <source>Try those that are chosen again at once; all of this page where none is chosen</source>
        <translation>Die gewählten sofort noch einmal versuchen; alle dieser Seite, wenn keiner gewählt ist</translation>
    </message>
    <message>
        <source>&amp;Drop…</source>
        <translation>&amp;Verwerfen…</translation>
    </message>
    <message>
        <source>Take those that are chosen out, so that they are not delivered; all of this page where none is chosen</source>
        <translation>Die gewählten herausnehmen, so dass sie nicht zugestellt werden; alle dieser Seite, wenn keiner gewählt ist</translation>
    </message>
    <message>
        <source>Open C&amp;hannel…</source>
        <translation>Ka&amp;nal öffnen…</translation>
    </message>
    <message>
        <source>The settings of the channel that the chosen alert goes through</source>
        <translation>Die Einstellungen des Kanals, über den der gewählte Alarm geht</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy those that are chosen as text, or all</source>
        <translation>Die gewählten als Text kopieren, oder alle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Waiting (%1)</source>
        <translation>Wartet (%1)</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Failed (%1)</source>
        <translation>Fehlgeschlagen (%1)</translation>
    </message>
    <message>
        <source>This alert will not be delivered:</source>
        <translation>Dieser Alarm wird nicht zugestellt:</translation>
    </message>
    <message>
        <source>These %1 alerts will not be delivered:</source>
        <translation>Diese %1 Alarme werden nicht zugestellt:</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Do You Want To Drop It?</source>
        <translation>Möchten Sie ihn verwerfen?</translation>
    </message>
    <message>
        <source>Do You Want To Drop Them?</source>
        <translation>Möchten Sie sie verwerfen?</translation>
    </message>
    <message>
        <source>The whole answer, and the whole alert</source>
        <translation>Die ganze Antwort und der ganze Alarm</translation>
    </message>
    <message>
        <source>Choose an alert to read it, and the whole answer.</source>
        <translation>Wählen Sie einen Alarm, um ihn und die ganze Antwort zu lesen.</translation>
    </message>
</context>
<context>
    <name>tarnwick::OutboxModel</name>
    <message>
        <source>%1, through %2</source>
        <translation>%1, über %2</translation>
    </message>
    <message>
        <source>Site %1: %2, through %3</source>
        <translation>Seite %1: %2, über %3</translation>
    </message>
    <message>
        <source>Next try</source>
        <translation>Nächster</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Last try</source>
        <translation>Letzter</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Seit</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Through</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Tries</source>
        <translation>Versuche</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>a channel that is gone</source>
        <translation>ein Kanal, den es nicht mehr gibt</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>soon</source>
        <translation>gleich</translation>
    </message>
</context>
<context>
    <name>tarnwick::OverviewList</name>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Gut</translation>
    </message>
</context>
<context>
    <name>tarnwick::PageHeads</name>
    <message>
        <source>Compare with another good page</source>
        <translation>Mit einem anderen guten Inhalt vergleichen</translation>
    </message>
</context>
<context>
    <name>tarnwick::PausePage</name>
    <message>
        <source>Right now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>not paused</source>
        <translation>keine Pause</translation>
    </message>
    <message>
        <source>paused for 1 hour</source>
        <translation>Pause für 1 Stunde</translation>
    </message>
    <message>
        <source>paused until tomorrow 8:00</source>
        <translation>Pause bis morgen 8:00</translation>
    </message>
    <message>
        <source>paused until …</source>
        <translation>Pause bis …</translation>
    </message>
    <message>
        <source>paused for good</source>
        <translation>Pause auf Dauer</translation>
    </message>
    <message>
        <source>While the alerts are paused sites are checked, and what is still so afterwards is told then</source>
        <translation>Während der Pause werden Seiten geprüft; was danach noch so ist, wird dann gemeldet</translation>
    </message>
    <message>
        <source>Paused until</source>
        <translation>Pause bis</translation>
    </message>
    <message>
        <source>In quiet hours</source>
        <translation>In Ruhezeiten</translation>
    </message>
</context>
<context>
    <name>tarnwick::PostVarModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>tarnwick::QuietHoursDialog</name>
    <message>
        <source>Quiet Hours</source>
        <translation>Ruhezeiten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close without a change (Esc)</source>
        <translation>Ohne Änderung schließen (Esc)</translation>
    </message>
</context>
<context>
    <name>tarnwick::QuietHoursForm</name>
    <message>
        <source>Quiet hours each week</source>
        <translation>Ruhezeiten jeder Woche</translation>
    </message>
    <message>
        <source>Drag over hours, or use arrows and Space. Local time: an hour that comes twice is quiet twice.</source>
        <translation>Über Stunden ziehen, oder mit Pfeiltasten und Leertaste. Ortszeit: Eine Stunde, die zweimal kommt, ist zweimal ruhig.</translation>
    </message>
    <message>
        <source>Dated windows</source>
        <translation>Zeiten mit Datum</translation>
    </message>
</context>
<context>
    <name>tarnwick::RowActions</name>
    <message>
        <source>Check %1 sites now?</source>
        <translation>%1 Seiten jetzt prüfen?</translation>
    </message>
    <message>
        <source>%1 of %2 are not active and are not checked.</source>
        <translation>%1 von %2 sind nicht aktiv und werden nicht geprüft.</translation>
    </message>
    <message>
        <source>Tell of %1 sites again?</source>
        <translation>Von %1 Seiten wieder melden?</translation>
    </message>
    <message>
        <source>%1 of %2 are not acknowledged and stay as they are.</source>
        <translation>%1 von %2 sind nicht als bekannt vermerkt und bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Ending acknowledgements ...</source>
        <translation>Vermerke werden entfernt ...</translation>
    </message>
    <message>
        <source>Acknowledge the wrong pages of %1 sites? Nothing is said of them while exactly these pages stay.</source>
        <translation>Die falschen Inhalte von %1 Seiten als bekannt vermerken? Von ihnen wird nichts gemeldet, solange genau diese Inhalte bleiben.</translation>
    </message>
    <message>
        <source>%1 of %2 have no such page and stay as they are.</source>
        <translation>%1 von %2 haben keinen solchen Inhalt und bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Acknowledging pages ...</source>
        <translation>Inhalte werden als bekannt vermerkt ...</translation>
    </message>
    <message>
        <source>Pause the alerts of %1 sites %2?</source>
        <translation>Die Meldungen von %1 Seiten pausieren, %2?</translation>
    </message>
    <message>
        <source>Pausing alerts ...</source>
        <translation>Meldungen werden pausiert ...</translation>
    </message>
    <message>
        <source>Resume the alerts of %1 sites?</source>
        <translation>Die Meldungen von %1 Seiten fortsetzen?</translation>
    </message>
    <message>
        <source>%1 of %2 are not paused and stay as they are.</source>
        <translation>%1 von %2 sind nicht pausiert und bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Resuming alerts ...</source>
        <translation>Meldungen werden fortgesetzt ...</translation>
    </message>
    <message>
        <source>Set the counters of this site to 0?</source>
        <translation>Die Zähler dieser Seite auf 0 setzen?</translation>
    </message>
    <message>
        <source>Set the counters of %1 sites to 0?</source>
        <translation>Die Zähler von %1 Seiten auf 0 setzen?</translation>
    </message>
    <message>
        <source>%1 of %2 are at 0 and stay as they are.</source>
        <translation>%1 von %2 stehen auf 0 und bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Do You Want To Delete This Site?</source>
        <translation>Möchten Sie diese Seite löschen?</translation>
    </message>
    <message>
        <source>Do You Want To Delete These %1 Sites?</source>
        <translation>Möchten Sie diese %1 Seiten löschen?</translation>
    </message>
    <message>
        <source>Deleting sites ...</source>
        <translation>Seiten werden gelöscht ...</translation>
    </message>
    <message>
        <source>Site %1: %2</source>
        <translation>Seite %1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Check 1 site now?</source>
        <translation>1 Seite jetzt prüfen?</translation>
    </message>
    <message>
        <source>%1 of %2 is not active and is not checked.</source>
        <translation>%1 von %2 ist nicht aktiv und wird nicht geprüft.</translation>
    </message>
    <message>
        <source>Tell of 1 site again?</source>
        <translation>Von 1 Seite wieder melden?</translation>
    </message>
    <message>
        <source>%1 of %2 is not acknowledged and stays as it is.</source>
        <translation>%1 von %2 ist nicht als bekannt vermerkt und bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Acknowledge the wrong page of 1 site? Nothing is said of it while exactly this page stays.</source>
        <translation>Den falschen Inhalt von 1 Seite als bekannt vermerken? Von ihr wird nichts gemeldet, solange genau dieser Inhalt bleibt.</translation>
    </message>
    <message>
        <source>%1 of %2 has no such page and stays as it is.</source>
        <translation>%1 von %2 hat keinen solchen Inhalt und bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Resume the alerts of 1 site?</source>
        <translation>Die Meldungen von 1 Seite fortsetzen?</translation>
    </message>
    <message>
        <source>%1 of %2 is not paused and stays as it is.</source>
        <translation>%1 von %2 ist nicht pausiert und bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>%1 of %2 is at 0 and stays as it is.</source>
        <translation>%1 von %2 steht auf 0 und bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Clearing counters ...</source>
        <translation>Zähler werden zurückgesetzt ...</translation>
    </message>
    <message>
        <source>Changing sites ...</source>
        <translation>Seiten werden geändert ...</translation>
    </message>
    <message>
        <source>Site %1 was deleted.</source>
        <translation>Seite %1 wurde gelöscht.</translation>
    </message>
    <message>
        <source>%1 sites were deleted.</source>
        <translation>%1 Seiten wurden gelöscht.</translation>
    </message>
    <message>
        <source>&amp;Undo Delete Site %1</source>
        <translation>&amp;Löschen von Seite %1 rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Undo Delete %1 Sites</source>
        <translation>&amp;Löschen von %1 Seiten rückgängig machen</translation>
    </message>
    <message>
        <source>Putting sites back ...</source>
        <translation>Seiten werden zurückgeholt ...</translation>
    </message>
</context>
<context>
    <name>tarnwick::RuleTableModel</name>
    <message>
        <source>Rule %1 matches nothing: it would not be watched.</source>
        <translation>Regel %1 trifft nichts: Das wäre nicht überwacht.</translation>
    </message>
    <message>
        <source>compare only</source>
        <translation>nur vergleichen</translation>
    </message>
    <message>
        <source>leave out</source>
        <translation>auslassen</translation>
    </message>
    <message>
        <source>regular expression</source>
        <translation>regulärer Ausdruck</translation>
    </message>
    <message>
        <source>CSS</source>
        <translation>CSS</translation>
    </message>
    <message>
        <source>XPath</source>
        <translation>XPath</translation>
    </message>
    <message>
        <source>JSON pointer</source>
        <translation>JSON-Zeiger</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>not understood</source>
        <translation>nicht verstanden</translation>
    </message>
    <message>
        <source>matches nothing: would not be watched</source>
        <translation>trifft nichts: wäre nicht überwacht</translation>
    </message>
    <message>
        <source>1 place</source>
        <translation>1 Stelle</translation>
    </message>
    <message>
        <source>%1 places</source>
        <translation>%1 Stellen</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Matches now</source>
        <translation>Trifft jetzt</translation>
    </message>
</context>
<context>
    <name>tarnwick::RulesDialog</name>
    <message>
        <source>Rules of the Page</source>
        <translation>Regeln der Seite</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Add a rule</source>
        <translation>Eine Regel hinzufügen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove the chosen rule (Del)</source>
        <translation>Die gewählte Regel entfernen (Entf)</translation>
    </message>
    <message>
        <source>O&amp;K</source>
        <translation>O&amp;K</translation>
    </message>
    <message>
        <source>Compare by these rules; OK of the content stores them</source>
        <translation>Nach diesen Regeln vergleichen; OK des Inhalts speichert sie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close without a change (Esc)</source>
        <translation>Ohne Änderung schließen (Esc)</translation>
    </message>
    <message>
        <source>%1 of the page stays watched</source>
        <translation>%1 der Seite bleiben überwacht</translation>
    </message>
</context>
<context>
    <name>tarnwick::SameChanges</name>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>%1 has come</source>
        <translation>%1 kam dazu</translation>
    </message>
    <message>
        <source>%1 is gone</source>
        <translation>%1 fiel weg</translation>
    </message>
    <message>
        <source>%1 became %2</source>
        <translation>%1 wurde %2</translation>
    </message>
    <message>
        <source>Sites that have changed alike</source>
        <translation>Seiten, die sich gleich geändert haben</translation>
    </message>
    <message>
        <source>&amp;Accept…</source>
        <translation>Ü&amp;bernehmen…</translation>
    </message>
    <message>
        <source>Same Change on Many Sites</source>
        <translation>Gleiche Änderung auf vielen Seiten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Comparing …</source>
        <translation>Wird verglichen …</translation>
    </message>
    <message>
        <source>Site %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>%1 sites</source>
        <translation>%1 Seiten</translation>
    </message>
    <message>
        <source>No site has another page than its baseline.</source>
        <translation>Keine Seite hat einen anderen Inhalt als ihre Basis.</translation>
    </message>
    <message>
        <source>Tick the changes that were meant:</source>
        <translation>Haken Sie die gewollten Änderungen an:</translation>
    </message>
    <message>
        <source>What changed in site %1</source>
        <translation>Was sich an Seite %1 geändert hat</translation>
    </message>
    <message>
        <source>&amp;Accept %1…</source>
        <translation>%1 ü&amp;bernehmen…</translation>
    </message>
    <message>
        <source>The latest page of 1 site becomes its baseline.</source>
        <translation>Der letzte Inhalt von 1 Seite wird ihre Basis.</translation>
    </message>
    <message>
        <source>The latest pages of %1 sites become their baselines.</source>
        <translation>Die letzten Inhalte von %1 Seiten werden ihre Basis.</translation>
    </message>
    <message>
        <source>The baselines before are kept. Do You Want To Accept Them?</source>
        <translation>Die bisherigen werden aufgehoben. Möchten Sie sie übernehmen?</translation>
    </message>
    <message>
        <source>%1 of %2 stay as they are: they have another page by now, or one that looks like an error.</source>
        <translation>%1 von %2 bleiben, wie sie sind: Sie haben inzwischen einen anderen Inhalt, oder einen, der nach einem Fehler aussieht.</translation>
    </message>
</context>
<context>
    <name>tarnwick::SeenPicture</name>
    <message>
        <source>A picture of %1 × %2 is too large to be drawn.</source>
        <translation>Ein Bild von %1 × %2 ist zu groß, um gezeichnet zu werden.</translation>
    </message>
    <message>
        <source>The picture cannot be drawn: it is damaged.</source>
        <translation>Das Bild lässt sich nicht zeichnen: Es ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>tarnwick::SeenView</name>
    <message>
        <source>The baseline, simplified</source>
        <translation>Die Basis, vereinfacht</translation>
    </message>
    <message>
        <source>The latest page, simplified</source>
        <translation>Der letzte Inhalt, vereinfacht</translation>
    </message>
    <message>
        <source>Simplified: without pictures, scripts and the network.</source>
        <translation>Vereinfacht: ohne Bilder, Skripte und Netz.</translation>
    </message>
    <message>
        <source>%1 × %2 pixels became %3 × %4.</source>
        <translation>%1 × %2 Bildpunkte wurden %3 × %4.</translation>
    </message>
    <message>
        <source>Each pixel is the same.</source>
        <translation>Jeder Bildpunkt ist gleich.</translation>
    </message>
    <message>
        <source>%1 of %2 pixels differ (%3 %).</source>
        <translation>%1 von %2 Bildpunkten sind anders (%3 %).</translation>
    </message>
</context>
<context>
    <name>tarnwick::SettlingWords</name>
    <message>
        <source>There is no site %1 any more.</source>
        <translation>Seite %1 gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Site %1 is as it should be.</source>
        <translation>Seite %1 ist, wie sie sein soll.</translation>
    </message>
    <message>
        <source>Site %1 changed, and its page was not kept for want of room.</source>
        <translation>Seite %1 hat sich geändert; ihr Inhalt wurde aus Platzmangel nicht aufgehoben.</translation>
    </message>
    <message>
        <source>Site %1 does not answer</source>
        <translation>Seite %1 antwortet nicht</translation>
    </message>
    <message>
        <source>Site %1 changed, which is known</source>
        <translation>Seite %1 hat sich geändert, was bekannt ist</translation>
    </message>
    <message>
        <source>Site %1 changed</source>
        <translation>Seite %1 hat sich geändert</translation>
    </message>
    <message>
        <source>The latest check brought no page, but the text of an error.</source>
        <translation>Die letzte Prüfung brachte keine Seite, sondern den Text eines Fehlers.</translation>
    </message>
    <message>
        <source>This looks like an error page (%1).</source>
        <translation>Das sieht nach einer Fehlerseite aus (%1).</translation>
    </message>
    <message>
        <source>It has less than half the size of the baseline.</source>
        <translation>Der Inhalt ist weniger als halb so groß wie die Basis.</translation>
    </message>
    <message>
        <source>1 place that may vary is not found in it.</source>
        <translation>1 Stelle, die sich ändern darf, kommt darin nicht vor.</translation>
    </message>
    <message>
        <source>%1 places that may vary are not found in it.</source>
        <translation>%1 Stellen, die sich ändern dürfen, kommen darin nicht vor.</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>− Baseline, %1</source>
        <translation>− Basis, %1</translation>
    </message>
    <message>
        <source>+ Latest check %1, %2</source>
        <translation>+ Letzte Prüfung %1, %2</translation>
    </message>
    <message>
        <source>+ Latest check, %1</source>
        <translation>+ Letzte Prüfung, %1</translation>
    </message>
    <message>
        <source>− Good as well since %1, %2</source>
        <translation>− Auch gut seit %1, %2</translation>
    </message>
    <message>
        <source>− Baseline until %1, %2</source>
        <translation>− Basis bis %1, %2</translation>
    </message>
    <message>
        <source>line %1 is gone</source>
        <translation>Zeile %1 fehlt</translation>
    </message>
    <message>
        <source>line %1 is new</source>
        <translation>Zeile %1 ist neu</translation>
    </message>
    <message>
        <source>line %1 differs</source>
        <translation>Zeile %1 ist anders</translation>
    </message>
    <message>
        <source>lines %1 to %2 are gone</source>
        <translation>Zeilen %1 bis %2 fehlen</translation>
    </message>
    <message>
        <source>lines %1 to %2 are new</source>
        <translation>Zeilen %1 bis %2 sind neu</translation>
    </message>
    <message>
        <source>lines %1 to %2 differ</source>
        <translation>Zeilen %1 bis %2 sind anders</translation>
    </message>
    <message>
        <source>%1 more changes</source>
        <translation>%1 weitere Änderungen</translation>
    </message>
    <message>
        <source>bytes differ in 1 place</source>
        <translation>Bytes sind an 1 Stelle anders</translation>
    </message>
    <message>
        <source>bytes differ in %1 places</source>
        <translation>Bytes sind an %1 Stellen anders</translation>
    </message>
    <message>
        <source>+ Check of %1, %2</source>
        <translation>+ Prüfung von %1, %2</translation>
    </message>
    <message>
        <source>The check of %1 brought no page: %2</source>
        <translation>Die Prüfung von %1 brachte keine Seite: %2</translation>
    </message>
    <message>
        <source>No page of site %1 is here yet: the next check brings it.</source>
        <translation>Von Seite %1 liegt noch kein Inhalt vor: Die nächste Prüfung bringt ihn.</translation>
    </message>
    <message>
        <source>Site %1 answered with an empty page, which is known</source>
        <translation>Seite %1 hat leer geantwortet, was bekannt ist</translation>
    </message>
    <message>
        <source>Site %1 answered with an empty page</source>
        <translation>Seite %1 hat leer geantwortet</translation>
    </message>
    <message>
        <source>The page of %1 was empty, or is not kept any more.</source>
        <translation>Der Inhalt von %1 war leer oder wird nicht mehr aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteEditor</name>
    <message>
        <source>Site</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Site ID: %1</source>
        <translation>Seiten-ID: %1</translation>
    </message>
    <message>
        <source>Do You Want To Discard The Changes To Site %1?</source>
        <translation>Möchten Sie die Änderungen an Seite %1 verwerfen?</translation>
    </message>
    <message>
        <source>The user name holds a line end. Enter it as one line.</source>
        <translation>Der Benutzername enthält ein Zeilenende. Geben Sie ihn in einer Zeile ein.</translation>
    </message>
    <message>
        <source>This variable is not stored as it is shown. Press Apply to store the list, then click the variable again.</source>
        <translation>Diese Variable ist nicht so gespeichert, wie sie gezeigt wird. Drücken Sie Apply, um die Liste zu speichern, und klicken Sie die Variable dann noch einmal an.</translation>
    </message>
    <message>
        <source>site %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>Site %1: %2</source>
        <translation>Seite %1: %2</translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteExtras</name>
    <message>
        <source>line %1 differs</source>
        <translation>Zeile %1 ist anders</translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteGridModel</name>
    <message>
        <source>up</source>
        <translation>in Ordnung</translation>
    </message>
    <message>
        <source>down</source>
        <translation>nicht in Ordnung</translation>
    </message>
    <message>
        <source>not active</source>
        <translation>nicht aktiv</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>noch nicht geprüft</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Schlecht</translation>
    </message>
    <message>
        <source>Time Of Last Test</source>
        <translation>Zeit der letzten Prüfung</translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteGridView</name>
    <message>
        <source>Method ( get,post )</source>
        <translation>Methode ( get,post )</translation>
    </message>
    <message>
        <source>Active ( true,false )</source>
        <translation>Aktiv ( true,false )</translation>
    </message>
    <message>
        <source>Minutes Until Next Check</source>
        <translation>Minuten bis zur nächsten Prüfung</translation>
    </message>
    <message>
        <source>Date Last Checked</source>
        <translation>Datum der letzten Prüfung</translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteMenu</name>
    <message>
        <source>&amp;Open Site…</source>
        <translation>Seite &amp;öffnen…</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <source>for 1 &amp;Hour</source>
        <translation>für 1 &amp;Stunde</translation>
    </message>
    <message>
        <source>until &amp;Tomorrow 8:00</source>
        <translation>bis &amp;morgen 8:00</translation>
    </message>
    <message>
        <source>&amp;Until…</source>
        <translation>&amp;bis…</translation>
    </message>
    <message>
        <source>for &amp;Good</source>
        <translation>auf &amp;Dauer</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Fortsetzen</translation>
    </message>
    <message>
        <source>Pause Alerts</source>
        <translation>Meldungen pausieren</translation>
    </message>
    <message>
        <source>Tell nothing until</source>
        <translation>Nichts melden bis</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>This Always C&amp;hanges…</source>
        <translation>Das ändert sich &amp;immer …</translation>
    </message>
    <message>
        <source>Check &amp;Now</source>
        <translation>Jetzt &amp;prüfen</translation>
    </message>
    <message>
        <source>Ac&amp;knowledge</source>
        <translation>&amp;Bekannt</translation>
    </message>
    <message>
        <source>&amp;Reset Counters…</source>
        <translation>Zähle&amp;r zurücksetzen…</translation>
    </message>
    <message>
        <source>Open in &amp;Browser</source>
        <translation>Im Bro&amp;wser öffnen</translation>
    </message>
    <message>
        <source>&amp;Copy Address</source>
        <translation>Adresse &amp;kopieren</translation>
    </message>
    <message>
        <source>Cop&amp;y Rows as Text</source>
        <translation>&amp;Zeilen als Text kopieren</translation>
    </message>
    <message>
        <source>Choose one site</source>
        <translation>Wählen Sie eine Seite</translation>
    </message>
    <message>
        <source>No page differs from its baseline</source>
        <translation>Kein Inhalt weicht von seiner Basis ab</translation>
    </message>
    <message>
        <source>The site is not active</source>
        <translation>Die Seite ist nicht aktiv</translation>
    </message>
    <message>
        <source>There is no wrong page</source>
        <translation>Es gibt keinen falschen Inhalt</translation>
    </message>
    <message>
        <source>The counters are at 0</source>
        <translation>Die Zähler stehen auf 0</translation>
    </message>
    <message>
        <source>Alarm A&amp;gain</source>
        <translation>Wieder &amp;melden</translation>
    </message>
    <message>
        <source>&amp;Tags…</source>
        <translation>&amp;Schlagwörter…</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>Än&amp;dern…</translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteReason</name>
    <message>
        <source>Site %1: %2 (F4)</source>
        <translation>Seite %1: %2 (F4)</translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteSearch</name>
    <message>
        <source>Filter the list of sites</source>
        <translation>Die Liste der Seiten filtern</translation>
    </message>
    <message>
        <source>Filter: down, never, tag:shop … (Ctrl+F)</source>
        <translation>Filter: down, never, tag:shop … (Strg+F)</translation>
    </message>
    <message>
        <source>Show the original order again</source>
        <translation>Die ursprüngliche Reihenfolge wieder zeigen</translation>
    </message>
    <message>
        <source>No site matches.</source>
        <translation>Keine Seite passt.</translation>
    </message>
    <message>
        <source>Show All Sites</source>
        <translation>Alle Seiten zeigen</translation>
    </message>
    <message>
        <source>Sorted by %1 ✕</source>
        <translation>Nach %1 sortiert ✕</translation>
    </message>
    <message>
        <source>%1 of %2 sites</source>
        <translation>%1 von %2 Seiten</translation>
    </message>
    <message>
        <source>1 site, %1 down</source>
        <translation>1 Seite, %1 schlecht</translation>
    </message>
    <message>
        <source>%1 sites, %2 down</source>
        <translation>%1 Seiten, %2 schlecht</translation>
    </message>
    <message>
        <source>Sorted by %1</source>
        <translation>Nach %1 sortiert</translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteSettling</name>
    <message>
        <source>Site %1 has no earlier baseline.</source>
        <translation>Seite %1 hat keine frühere Basis.</translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteState</name>
    <message>
        <source>testing …</source>
        <translation>prüft …</translation>
    </message>
    <message>
        <source>up</source>
        <translation>gut</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>k. Antwort</translation>
    </message>
    <message>
        <source>not active</source>
        <translation>nicht aktiv</translation>
    </message>
    <message>
        <source>not a page</source>
        <translation>keine Seite</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>unsteady</source>
        <translation>unruhig</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>langsam</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>known</source>
        <translation>bekannt</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
</context>
<context>
    <name>tarnwick::SiteWork</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tarnwick::SitesDialog</name>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nothing is changed yet.</source>
        <translation>Noch ist nichts geändert.</translation>
    </message>
    <message>
        <source>Comparing: %1 of %2 ...</source>
        <translation>Wird verglichen: %1 von %2 ...</translation>
    </message>
    <message>
        <source>%1 of %2 stays as it is.</source>
        <translation>%1 von %2 bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>%1 of %2 stay as they are.</source>
        <translation>%1 von %2 bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>1 site changes.</source>
        <translation>1 Seite ändert sich.</translation>
    </message>
    <message>
        <source>%1 sites change.</source>
        <translation>%1 Seiten ändern sich.</translation>
    </message>
    <message>
        <source>All of them are so already.</source>
        <translation>Alle sind schon so.</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
</context>
<context>
    <name>tarnwick::Stripe</name>
    <message>
        <source>Down from %1 to %2 (%3): %4</source>
        <translation>Ausgefallen von %1 bis %2 (%3): %4</translation>
    </message>
    <message>
        <source>Down since %1 (%2): %3</source>
        <translation>Ausgefallen seit %1 (%2): %3</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 Stunden</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>%1: nothing is known</source>
        <translation>%1: nichts bekannt</translation>
    </message>
    <message>
        <source>%1: %2 up, %3</source>
        <translation>%1: %2 verfügbar, %3</translation>
    </message>
    <message>
        <source>no outage</source>
        <translation>kein Ausfall</translation>
    </message>
    <message>
        <source>1 outage</source>
        <translation>1 Ausfall</translation>
    </message>
    <message>
        <source>%1 outages</source>
        <translation>%1 Ausfälle</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1: %2 up</source>
        <translation>%1: %2 verfügbar</translation>
    </message>
    <message>
        <source>Median %1, slowest %2</source>
        <translation>Median %1, längste %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>tarnwick::TagsDialog</name>
    <message>
        <source>Tags</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>New tags</source>
        <translation>Neue Schlagwörter</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Tags of Site %1</source>
        <translation>Schlagwörter von Seite %1</translation>
    </message>
    <message>
        <source>Tags of %1 Sites</source>
        <translation>Schlagwörter von %1 Seiten</translation>
    </message>
    <message>
        <source>&amp;New tags:</source>
        <translation>&amp;Neue Schlagwörter:</translation>
    </message>
</context>
<context>
    <name>tarnwick::Tray</name>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Pause Alerts for 1 Hour</source>
        <translation>Alarme 1 Stunde aussetzen</translation>
    </message>
    <message>
        <source>Outbox…</source>
        <translation>Postausgang…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Resume Alerts</source>
        <translation>Alarme fortsetzen</translation>
    </message>
    <message>
        <source>Outbox: %1 waiting…</source>
        <translation>Postausgang: %1 warten…</translation>
    </message>
    <message>
        <source>No site is active</source>
        <translation>Keine Seite ist aktiv</translation>
    </message>
    <message>
        <source>%1 of 1 site down</source>
        <translation>%1 von 1 Seite ausgefallen</translation>
    </message>
    <message>
        <source>%1 of %2 sites down</source>
        <translation>%1 von %2 Seiten ausgefallen</translation>
    </message>
</context>
<context>
    <name>tarnwick::UndoNotice</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig machen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>tarnwick::VarsForm</name>
    <message>
        <source>Command1</source>
        <translation>Command1</translation>
    </message>
</context>
<context>
    <name>tarnwick::WeekMapModel</name>
    <message>
        <source>%1 %2 to %3: quiet</source>
        <translation>%1 %2 bis %3: Ruhe</translation>
    </message>
    <message>
        <source>%1 %2 to %3: not quiet</source>
        <translation>%1 %2 bis %3: keine Ruhe</translation>
    </message>
</context>
<context>
    <name>tarnwick::WindowFrame</name>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Close to the tray</source>
        <translation>Beim Schließen ins Infofeld</translation>
    </message>
    <message>
        <source>Start with the desktop</source>
        <translation>Mit dem Desktop starten</translation>
    </message>
    <message>
        <source>Closing the window leaves the program in the tray, as long as there is one</source>
        <translation>Beim Schließen des Fensters bleibt das Programm im Infofeld, solange es eines gibt</translation>
    </message>
    <message>
        <source>This desktop has no tray: closing the window ends the program</source>
        <translation>Dieser Desktop hat kein Infofeld: Das Schließen des Fensters beendet das Programm</translation>
    </message>
    <message>
        <source>The window opens when you log in to this desktop</source>
        <translation>Das Fenster öffnet sich, wenn Sie sich an diesem Desktop anmelden</translation>
    </message>
</context>
</TS>
