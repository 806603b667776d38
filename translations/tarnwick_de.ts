<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <source>Options of this site</source>
        <translation>Optionen dieser Seite</translation>
    </message>
    <message>
        <source>Site</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
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
        <source>What becomes the baseline of a site that has none; with &quot;pages only&quot; a fetch that failed does not</source>
        <translation>Was zur Basis einer Seite ohne Basis wird; mit „nur gute Seiten“ nicht der Text eines gescheiterten Holens</translation>
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
    <name>tarnwick::SiteReason</name>
    <message>
        <source>Site %1: %2</source>
        <translation>Seite %1: %2</translation>
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
</context>
<context>
    <name>tarnwick::VarsForm</name>
    <message>
        <source>Command1</source>
        <translation>Command1</translation>
    </message>
</context>
</TS>
