<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutDlg</name>
    <message>
        <source>Tarn-Client Info</source>
        <translation>Informationen zum Tarn-Client</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>ActivityLogModel</name>
    <message>
        <source>%1 days, %2:%3:%4</source>
        <translation>%1 Tage, %2:%3:%4</translation>
    </message>
    <message>
        <source>%1 second(s)</source>
        <translation>%1 Sekunde(n)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Data size</source>
        <translation>Datenmenge</translation>
    </message>
</context>
<context>
    <name>BackupSetViewItem</name>
    <message>
        <source>Backup of: %1</source>
        <translation>Sicherung von: %1</translation>
    </message>
    <message>
        <source>This backup set is a recovered backup set. You must edit
the backup set items, schedule and the retention for this
backup set using the buttons on the right.</source>
        <translation>Sicherung von: %1</translation>
    </message>
    <message>
        <source>Backup set name</source>
        <translation>Name des Sicherungssatzes</translation>
    </message>
    <message>
        <source>Rename backup set error</source>
        <translation>Fehler beim Umbenennen des Sicherungssatzes</translation>
    </message>
</context>
<context>
    <name>EventLogModel</name>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Warn</source>
        <translation>Warn</translation>
    </message>
    <message>
        <source>Err</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Socket</source>
        <translation>Socket</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>Exception</source>
        <translation>Ausnahme</translation>
    </message>
    <message>
        <source>I/O</source>
        <translation>E/A</translation>
    </message>
    <message>
        <source>Operating System</source>
        <translation>Betriebssystem</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>MAPI</source>
        <translation>MAPI</translation>
    </message>
    <message>
        <source>Novell</source>
        <translation>Novell</translation>
    </message>
    <message>
        <source>Oracle</source>
        <translation>Oracle</translation>
    </message>
    <message>
        <source>RMAN</source>
        <translation>RMAN</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>DB2</source>
        <translation>DB2</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Event #</source>
        <translation>Ereignis-Nr.</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Aktivität</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
</context>
<context>
    <name>EventLogViewer</name>
    <message>
        <source>Event Log Viewer</source>
        <translation>Ereignisanzeige</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Viewing Filter</source>
        <translation>Anzeigefilter</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>Events from</source>
        <translation>Ereignisse von</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Bis:</translation>
    </message>
    <message>
        <source>Events to</source>
        <translation>Ereignisse bis</translation>
    </message>
    <message>
        <source>&amp;Activity ID:</source>
        <translation>&amp;Aktivitäts-ID:</translation>
    </message>
    <message>
        <source>Activity ID</source>
        <translation>Aktivitäts-ID</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>LoginCheck</name>
    <message>
        <source>Login</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Login Information</source>
        <translation>Anmeldedaten</translation>
    </message>
    <message>
        <source>User &amp;Name:</source>
        <translation>Benutzer&amp;name:</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Kennwort:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>&amp;Use currently logged in user</source>
        <translation>&amp;Als aktueller Benutzer anmelden</translation>
    </message>
    <message>
        <source>&amp;Login</source>
        <translation>A&amp;nmelden</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Domäne:</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
    <message>
        <source>Login Failed</source>
        <translation>Anmeldung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>RunningActivitiesModel</name>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>%L1 files</source>
        <translation>%L1 Dateien</translation>
    </message>
    <message>
        <source>&lt;tr&gt;&lt;td&gt;&lt;b&gt;Start:&lt;/b&gt;&lt;/td&gt; &lt;td&gt;%1&lt;/&lt;td&gt;&lt;/tr&gt;</source>
        <translation>&lt;tr&gt;&lt;td&gt;&lt;b&gt;Beginn:&lt;/b&gt;&lt;/td&gt; &lt;td&gt;%1&lt;/&lt;td&gt;&lt;/tr&gt;</translation>
    </message>
    <message>
        <source>&lt;tr&gt;&lt;td&gt;&lt;b&gt;Status:&lt;/b&gt;&lt;/td&gt; &lt;td&gt;%1&lt;/&lt;td&gt;&lt;/tr&gt;</source>
        <translation>&lt;tr&gt;&lt;td&gt;&lt;b&gt;Status:&lt;/b&gt;&lt;/td&gt; &lt;td&gt;%1&lt;/&lt;td&gt;&lt;/tr&gt;</translation>
    </message>
    <message>
        <source>&lt;tr&gt;&lt;td&gt;&lt;b&gt;Directory:&lt;/b&gt;&lt;/td&gt;&lt;td&gt;%1&lt;/&lt;td&gt;&lt;/tr&gt;</source>
        <translation>&lt;tr&gt;&lt;td&gt;&lt;b&gt;Verzeichnis:&lt;/b&gt;&lt;/td&gt;&lt;td&gt;%1&lt;/&lt;td&gt;&lt;/tr&gt;</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>It is not allowed to connect to %1 using %2.</source>
        <translation>Eine Verbindung zu %1 mit %2 ist nicht erlaubt.</translation>
    </message>
</context>
<context>
    <name>SimpleGUIMainWindow</name>
    <message>
        <source>Ostrand Backup</source>
        <translation>Ostrand Backup</translation>
    </message>
    <message>
        <source>Backup sets</source>
        <translation>Sicherungssätze</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>Letzte Sicherung:</translation>
    </message>
    <message>
        <source>Protected file generations:</source>
        <translation>Geschützte Dateigenerationen:</translation>
    </message>
    <message>
        <source>Protected size:</source>
        <translation>Geschützte Größe:</translation>
    </message>
    <message>
        <source>Protected items:</source>
        <translation>Geschützte Elemente:</translation>
    </message>
    <message>
        <source>Edit backup set items</source>
        <translation>Elemente des Sicherungssatzes bearbeiten</translation>
    </message>
    <message>
        <source>Schedule:</source>
        <translation>Zeitplan:</translation>
    </message>
    <message>
        <source>Create/Edit schedule</source>
        <translation>Zeitplan erstellen oder bearbeiten</translation>
    </message>
    <message>
        <source>Retention:</source>
        <translation>Aufbewahrung:</translation>
    </message>
    <message>
        <source>Create/Edit retention rules</source>
        <translation>Aufbewahrungsregeln erstellen oder bearbeiten</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Aktivitäten</translation>
    </message>
    <message>
        <source>Running Activities</source>
        <translation>Laufende Aktivitäten</translation>
    </message>
    <message>
        <source>Running activities</source>
        <translation>Laufende Aktivitäten</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stoppen</translation>
    </message>
    <message>
        <source>Activity Log</source>
        <translation>Aktivitätsprotokoll</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;Bis:</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>&amp;Ereignisse</translation>
    </message>
    <message>
        <source>Activity log</source>
        <translation>Aktivitätsprotokoll</translation>
    </message>
    <message>
        <source>&amp;Application</source>
        <translation>&amp;Anwendung</translation>
    </message>
    <message>
        <source>&amp;Backup Set</source>
        <translation>&amp;Sicherungssatz</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Konfiguration</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Main Tool Bar</source>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Verbinden</translation>
    </message>
    <message>
        <source>&amp;Disconnect</source>
        <translation>&amp;Trennen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;New Set</source>
        <translation>&amp;Neuer Satz</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Synchronize</source>
        <translation>S&amp;ynchronisieren</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Admin</source>
        <translation>&amp;Verwaltung</translation>
    </message>
    <message>
        <source>&amp;Recovery</source>
        <translation>&amp;Rettung</translation>
    </message>
    <message>
        <source>&amp;About Tarn-Mobile User</source>
        <translation>Ü&amp;ber Tarn-Mobile User</translation>
    </message>
    <message>
        <source>R&amp;e-Register</source>
        <translation>&amp;Neu registrieren</translation>
    </message>
    <message>
        <source>Registration &amp;Info</source>
        <translation>Registrierungs&amp;daten</translation>
    </message>
    <message>
        <source>LDA&amp;P User Account</source>
        <translation>LDA&amp;P-Benutzerkonto</translation>
    </message>
    <message>
        <source>&amp;Two Factor Authentication</source>
        <translation>&amp;Zwei-Faktor-Authentifizierung</translation>
    </message>
    <message>
        <source>Logging to Tarn-Client...</source>
        <translation>Anmeldung am Tarn-Client …</translation>
    </message>
    <message>
        <source>Logged in to &apos;%1&apos; as &apos;%2&apos;</source>
        <translation>Angemeldet an „%1“ als „%2“</translation>
    </message>
    <message>
        <source>Ostrand Backup - %1@%2</source>
        <translation>Ostrand Backup - %1@%2</translation>
    </message>
    <message>
        <source>Current connection terminated</source>
        <translation>Die Verbindung wurde beendet</translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation>UNBEKANNT</translation>
    </message>
    <message>
        <source>Never backed up</source>
        <translation>Nie gesichert</translation>
    </message>
    <message>
        <source>Not Scheduled</source>
        <translation>Ohne Zeitplan</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Time-based</source>
        <translation>Zeitbasiert</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>Keine Elemente</translation>
    </message>
    <message>
        <source>%1 to %2 generations</source>
        <translation>%1 bis %2 Generationen</translation>
    </message>
    <message>
        <source>%1 generation(s)</source>
        <translation>%1 Generation(en)</translation>
    </message>
    <message>
        <source>Started - </source>
        <translation>Gestartet – </translation>
    </message>
    <message>
        <source>Completed - </source>
        <translation>Beendet – </translation>
    </message>
    <message>
        <source> - %1</source>
        <translation> – %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>%1: On-demand backup started for &apos;%2&apos;</source>
        <translation>%1: Sicherung auf Anforderung für „%2“ gestartet</translation>
    </message>
    <message>
        <source>%1: On-demand Synchronization started for &apos;%2&apos;</source>
        <translation>%1: Synchronisierung auf Anforderung für „%2“ gestartet</translation>
    </message>
    <message>
        <source>Sent a stop request to activity with id %1</source>
        <translation>Die Aktivität mit der ID %1 wurde aufgefordert anzuhalten</translation>
    </message>
    <message>
        <source>Failed to open the help file %1.</source>
        <translation>Die Hilfedatei %1 konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Configuration Error</source>
        <translation>Konfigurationsfehler</translation>
    </message>
    <message>
        <source>%1: Daily admin started.</source>
        <translation>%1: Tägliche Verwaltung gestartet.</translation>
    </message>
    <message>
        <source>No backup set selected.</source>
        <translation>Es ist kein Sicherungssatz ausgewählt.</translation>
    </message>
    <message>
        <source>Error checking backup set properties</source>
        <translation>Fehler beim Lesen der Eigenschaften des Sicherungssatzes</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Ostrand Backup Activity</source>
        <translation>Ostrand Backup – Aktivität</translation>
    </message>
    <message>
        <source>%1 is still running!</source>
        <translation>%1 läuft noch!</translation>
    </message>
    <message>
        <source>You can click the icon to show the window.

Click here to not show this reminder again.</source>
        <translation>Ein Klick auf das Symbol zeigt das Fenster wieder an.

Klicken Sie hier, um diesen Hinweis nicht mehr zu sehen.</translation>
    </message>
</context>
<context>
    <name>TarnClientInfoModel</name>
    <message>
        <source>Item</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>activityTypeLabel</name>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>CDP Backup</source>
        <translation>CDP-Sicherung</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>Daily Admin</source>
        <translation>Tägliche Verwaltung</translation>
    </message>
    <message>
        <source>Weekly Admin</source>
        <translation>Wöchentliche Verwaltung</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschung</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Rettung</translation>
    </message>
    <message>
        <source>Synchronization</source>
        <translation>Synchronisierung</translation>
    </message>
    <message>
        <source>Disk/Tape Request</source>
        <translation>Platten-/Bandanforderung</translation>
    </message>
    <message>
        <source>Disk/Tape Restore</source>
        <translation>Wiederherstellung von Platte/Band</translation>
    </message>
    <message>
        <source>Orlop Request</source>
        <translation>Orlop-Anforderung</translation>
    </message>
    <message>
        <source>On-Line File Summary</source>
        <translation>Übersicht der Online-Dateien</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Registrierung</translation>
    </message>
    <message>
        <source>LAN Discovery</source>
        <translation>LAN-Erkundung</translation>
    </message>
    <message>
        <source>Orlop Restore</source>
        <translation>Orlop-Wiederherstellung</translation>
    </message>
    <message>
        <source>Validation</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Retention</source>
        <translation>Aufbewahrung</translation>
    </message>
    <message>
        <source>Tape Conversion</source>
        <translation>Bandkonvertierung</translation>
    </message>
    <message>
        <source>Cache Copy</source>
        <translation>Cache-Kopie</translation>
    </message>
    <message>
        <source>Cache Monitor</source>
        <translation>Cache-Überwachung</translation>
    </message>
    <message>
        <source>App Auto Upgrade</source>
        <translation>Automatische Aktualisierung</translation>
    </message>
    <message>
        <source>Unknown activity type</source>
        <translation>Unbekannte Aktivität</translation>
    </message>
</context>
<context>
    <name>getSetDataType</name>
    <message>
        <source>File System</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>MS SQL Server</source>
        <translation>MS SQL Server</translation>
    </message>
    <message>
        <source>MS Exchange Server</source>
        <translation>MS Exchange Server</translation>
    </message>
    <message>
        <source>Oracle</source>
        <translation>Oracle</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Berechtigungen</translation>
    </message>
    <message>
        <source>MS Exchange Email</source>
        <translation>MS Exchange E-Mail</translation>
    </message>
    <message>
        <source>MS Outlook Email</source>
        <translation>MS Outlook E-Mail</translation>
    </message>
    <message>
        <source>IBM System i</source>
        <translation>IBM System i</translation>
    </message>
    <message>
        <source>My SQL</source>
        <translation>My SQL</translation>
    </message>
    <message>
        <source>Postgres</source>
        <translation>Postgres</translation>
    </message>
    <message>
        <source>DB2</source>
        <translation>DB2</translation>
    </message>
    <message>
        <source>Lotus Notes Email</source>
        <translation>Lotus Notes E-Mail</translation>
    </message>
    <message>
        <source>Groupwise Email</source>
        <translation>Groupwise E-Mail</translation>
    </message>
    <message>
        <source>Sharepoint</source>
        <translation>Sharepoint</translation>
    </message>
    <message>
        <source>VMWare</source>
        <translation>VMWare</translation>
    </message>
    <message>
        <source>XenServer</source>
        <translation>XenServer</translation>
    </message>
    <message>
        <source>Sybase</source>
        <translation>Sybase</translation>
    </message>
    <message>
        <source>MS Hyper-V Server</source>
        <translation>MS Hyper-V Server</translation>
    </message>
    <message>
        <source>VMWare VADP</source>
        <translation>VMWare VADP</translation>
    </message>
    <message>
        <source>Unknown Data Type</source>
        <translation>Unbekannter Datentyp</translation>
    </message>
</context>
<context>
    <name>openBackupSet</name>
    <message>
        <source>The agent doesn&apos;t know this backup set.</source>
        <translation>Der Agent kennt diesen Sicherungssatz nicht.</translation>
    </message>
</context>
<context>
    <name>required</name>
    <message>
        <source>The agent doesn&apos;t have what was asked for.</source>
        <translation>Der Agent stellt das Angeforderte nicht bereit.</translation>
    </message>
</context>
<context>
    <name>sizeToString</name>
    <message>
        <source>%1 Byte(s)</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%L1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%L1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%L1 GB</translation>
    </message>
</context>
</TS>
