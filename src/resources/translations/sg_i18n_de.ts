<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
</context>
<context>
    <name>BackupSetsModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
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
    <name>ui</name>
    <message>
        <source>%1 Byte(s)</source>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
</context>
</TS>
