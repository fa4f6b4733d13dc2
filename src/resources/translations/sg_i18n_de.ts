<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ADAccountDlg</name>
    <message>
        <source>Modify LDAP User Account</source>
        <translation>LDAP-Benutzerkonto ändern</translation>
    </message>
    <message>
        <source>LDAP user settings</source>
        <translation>LDAP-Benutzer</translation>
    </message>
    <message>
        <source>&amp;User Account:</source>
        <translation>&amp;Benutzerkonto:</translation>
    </message>
    <message>
        <source>User account</source>
        <translation>Benutzerkonto</translation>
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
        <source>Con&amp;firm:</source>
        <translation>Bes&amp;tätigung:</translation>
    </message>
    <message>
        <source>Confirm password</source>
        <translation>Kennwort wiederholen</translation>
    </message>
    <message>
        <source>&amp;Domain:</source>
        <translation>&amp;Domäne:</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
    <message>
        <source>&amp;Validate Now...</source>
        <translation>Jetzt &amp;prüfen …</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Username is required for initialization.</source>
        <translation>Für die Einrichtung wird der Benutzername benötigt.</translation>
    </message>
    <message>
        <source>Password is required for initialization.</source>
        <translation>Für die Einrichtung wird das Kennwort benötigt.</translation>
    </message>
    <message>
        <source>The password you typed do not match.</source>
        <translation>Die eingegebenen Kennwörter stimmen nicht überein.</translation>
    </message>
    <message>
        <source>Domain is required for initialization.</source>
        <translation>Für die Einrichtung wird die Domäne benötigt.</translation>
    </message>
    <message>
        <source>LDAP User Validation Error</source>
        <translation>Fehler beim Prüfen des LDAP-Benutzers</translation>
    </message>
    <message>
        <source>LDAP User Validation</source>
        <translation>Prüfung des LDAP-Benutzers</translation>
    </message>
    <message>
        <source>LDAP User Information is saved successfully.</source>
        <translation>Die Angaben zum LDAP-Benutzer wurden gespeichert.</translation>
    </message>
    <message>
        <source>LDAP User Information is validated successfully.</source>
        <translation>Die Angaben zum LDAP-Benutzer wurden erfolgreich geprüft.</translation>
    </message>
</context>
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
        <source>Release %1</source>
        <translation>Release %1</translation>
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
        <translation>%1 Sek.</translation>
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
    <name>AdminConfigPage</name>
    <message>
        <source>Admin Configuration</source>
        <translation>Verwaltung einrichten</translation>
    </message>
    <message>
        <source>Tarn-Client daily/weekly admin configuration </source>
        <translation>Tägliche und wöchentliche Verwaltung des Tarn-Clients </translation>
    </message>
    <message>
        <source>Admin Process</source>
        <translation>Verwaltungslauf</translation>
    </message>
    <message>
        <source>&amp;Daily</source>
        <translation>&amp;Täglich</translation>
    </message>
    <message>
        <source>start at:</source>
        <translation>Beginn um:</translation>
    </message>
    <message>
        <source>Start of the daily admin process</source>
        <translation>Beginn des täglichen Verwaltungslaufs</translation>
    </message>
    <message>
        <source>&amp;Run Now</source>
        <translation>Jetzt &amp;starten</translation>
    </message>
    <message>
        <source>&amp;Weekly</source>
        <translation>Wö&amp;chentlich</translation>
    </message>
    <message>
        <source>Start of the weekly admin process</source>
        <translation>Beginn des wöchentlichen Verwaltungslaufs</translation>
    </message>
    <message>
        <source>R&amp;un Now</source>
        <translation>Jetzt sta&amp;rten</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Jeden</translation>
    </message>
    <message>
        <source>Day of the weekly admin process</source>
        <translation>Tag des wöchentlichen Verwaltungslaufs</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
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
        <source>Configuration Error</source>
        <translation>Konfigurationsfehler</translation>
    </message>
</context>
<context>
    <name>BackupHealthModel</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>time and age</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>time and outcome</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Not scheduled</source>
        <translation>Nicht geplant</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>Not read yet</source>
        <translation>Noch nicht gelesen</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 (policy)</source>
        <translation>%1 (Richtlinie)</translation>
    </message>
    <message>
        <source>Backup set</source>
        <translation>Sicherungssatz</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Last good backup</source>
        <translation>Letzte gute Sicherung</translation>
    </message>
    <message>
        <source>Last attempt</source>
        <translation>Letzter Versuch</translation>
    </message>
    <message>
        <source>Next run</source>
        <translation>Nächster Lauf</translation>
    </message>
    <message>
        <source>Stored size</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Generations</source>
        <translation>Generationen</translation>
    </message>
    <message>
        <source>Made by</source>
        <translation>Erstellt von</translation>
    </message>
</context>
<context>
    <name>BackupHealthWindow</name>
    <message>
        <source>Backup Health</source>
        <translation>Zustand der Sicherungen</translation>
    </message>
    <message>
        <source>Backup Se&amp;ts</source>
        <translation>Sicherungssä&amp;tze</translation>
    </message>
    <message>
        <source>Backup sets, worst first</source>
        <translation>Sicherungssätze, die schlechtesten zuerst</translation>
    </message>
    <message>
        <source>What It Means</source>
        <translation>Was es bedeutet</translation>
    </message>
    <message>
        <source>&amp;Backup</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>&amp;Synchronize</source>
        <translation>S&amp;ynchronisieren</translation>
    </message>
    <message>
        <source>Show &amp;Events</source>
        <translation>&amp;Ereignisse anzeigen</translation>
    </message>
    <message>
        <source>&amp;Next Runs</source>
        <translation>&amp;Nächste Läufe</translation>
    </message>
    <message>
        <source>Backups of the coming 14 days</source>
        <translation>Sicherungen der nächsten 14 Tage</translation>
    </message>
    <message>
        <source>&amp;Week:</source>
        <translation>&amp;Woche:</translation>
    </message>
    <message>
        <source>Week that is shown</source>
        <translation>Gezeigte Woche</translation>
    </message>
    <message>
        <source>Backups of the week</source>
        <translation>Sicherungen der Woche</translation>
    </message>
    <message>
        <source>Sets read</source>
        <translation>Gelesene Sätze</translation>
    </message>
    <message>
        <source>%v of %m sets read</source>
        <translation>%v von %m Sätzen gelesen</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>The coming 7 days</source>
        <translation>Die nächsten 7 Tage</translation>
    </message>
    <message>
        <source>The 7 days after them</source>
        <translation>Die 7 Tage danach</translation>
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
        <translation>Dieser Sicherungssatz wurde gerettet. Sie müssen seine Elemente,
seinen Zeitplan und seine Aufbewahrung mit den Schaltflächen
rechts neu einrichten.</translation>
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
    <name>app::BackupSetRows</name>
    <message>
        <source>Backup of: %1</source>
        <translation>Sicherung von: %1</translation>
    </message>
    <message>
        <source>Not in sync</source>
        <translation>Nicht synchron</translation>
    </message>
    <message>
        <source>Recovered, needs editing</source>
        <translation>Gerettet, muss bearbeitet werden</translation>
    </message>
    <message>
        <source>In sync</source>
        <translation>Synchron</translation>
    </message>
    <message>
        <source>Created by a policy</source>
        <translation>Durch eine Richtlinie angelegt</translation>
    </message>
</context>
<context>
    <name>CComputerTreeItem</name>
    <message>
        <source>Failed to expand &apos;%1&apos;</source>
        <translation>„%1“ konnte nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>CEnterSimpleUserPsw</name>
    <message>
        <source>Select Credentials</source>
        <translation>Anmeldedaten wählen</translation>
    </message>
    <message>
        <source>Credentials</source>
        <translation>Anmeldedaten</translation>
    </message>
    <message>
        <source>&amp;User Name:</source>
        <translation>&amp;Benutzername:</translation>
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
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>CFileExtensionValidator</name>
    <message>
        <source>A file extension cannot contain any of the following characters: \/:*?&quot;&lt;&gt;|.</source>
        <translation>Eine Dateiendung darf keines dieser Zeichen enthalten: \/:*?&quot;&lt;&gt;|.</translation>
    </message>
</context>
<context>
    <name>CGenerationSelectModel</name>
    <message>
        <source>Backup time</source>
        <translation>Sicherungszeit</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>Modification time</source>
        <translation>Änderungszeit</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
</context>
<context>
    <name>CSSHAccessType</name>
    <message>
        <source>Select SSH Access Type</source>
        <translation>Art des SSH-Zugriffs wählen</translation>
    </message>
    <message>
        <source>SSH Access Options:</source>
        <translation>SSH-Zugriff:</translation>
    </message>
    <message>
        <source>&amp;Interface:</source>
        <translation>&amp;Schnittstelle:</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Perl</source>
        <translation>Perl</translation>
    </message>
    <message>
        <source>Python</source>
        <translation>Python</translation>
    </message>
    <message>
        <source>Direct Script Execution</source>
        <translation>Direkte Skriptausführung</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Pfad:</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Cannot set ssh access type</source>
        <translation>Die Art des SSH-Zugriffs kann nicht gesetzt werden</translation>
    </message>
    <message>
        <source>The access method &apos;direct script execution&apos; requires the script path to execute</source>
        <translation>Die direkte Skriptausführung braucht den Pfad des Skripts</translation>
    </message>
</context>
<context>
    <name>CSSHConnectAsDlg</name>
    <message>
        <source>Select SSH Login Authentication</source>
        <translation>SSH-Anmeldung wählen</translation>
    </message>
    <message>
        <source>Authentication Style</source>
        <translation>Art der Anmeldung</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Kennwort</translation>
    </message>
    <message>
        <source>&amp;Identity File</source>
        <translation>&amp;Schlüsseldatei</translation>
    </message>
    <message>
        <source>Credentials</source>
        <translation>Anmeldedaten</translation>
    </message>
    <message>
        <source>&amp;User Name:</source>
        <translation>&amp;Benutzername:</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Kenn&amp;wort:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>&amp;User Name</source>
        <translation>Benutzer&amp;name:</translation>
    </message>
    <message>
        <source>Identity &amp;File:</source>
        <translation>Schlüssel&amp;datei:</translation>
    </message>
    <message>
        <source>Identity file</source>
        <translation>Schlüsseldatei</translation>
    </message>
    <message>
        <source>P&amp;assphrase:</source>
        <translation>&amp;Passphrase:</translation>
    </message>
    <message>
        <source>Passphrase</source>
        <translation>Passphrase</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>CSSHSudoCredentials</name>
    <message>
        <source>Select &apos;SUDO&apos; credentials</source>
        <translation>Anmeldedaten für SUDO wählen</translation>
    </message>
    <message>
        <source>Credentials</source>
        <translation>Anmeldedaten</translation>
    </message>
    <message>
        <source>&amp;User Name:</source>
        <translation>&amp;Benutzername:</translation>
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
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;No SUDO</source>
        <translation>Ohne &amp;SUDO</translation>
    </message>
</context>
<context>
    <name>CUserNameValidator</name>
    <message>
        <source>User names cannot contain these characters: \/&quot;[]:|&lt;&gt;+=;,?*@ and must be less than 20 characters</source>
        <translation>Benutzernamen dürfen diese Zeichen nicht enthalten: \/&quot;[]:|&lt;&gt;+=;,?*@ und müssen kürzer als 20 Zeichen sein</translation>
    </message>
</context>
<context>
    <name>ConnectionTexts</name>
    <message>
        <source>Connected to %1</source>
        <translation>Verbunden mit %1</translation>
    </message>
    <message>
        <source>Lost at %1: %2</source>
        <translation>Verloren um %1: %2</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Connected to %1 as %2</source>
        <translation>Verbunden mit %1 als %2</translation>
    </message>
    <message>
        <source>The connection to %1 was lost at %2:</source>
        <translation>Die Verbindung zu %1 ging verloren: %2</translation>
    </message>
    <message>
        <source>Not connected to an agent</source>
        <translation>Mit keinem Agenten verbunden</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>Die Sitzung ist beendet: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>Die Sitzung ist beendet.</translation>
    </message>
</context>
<context>
    <name>ChosenFile</name>
    <message>
        <source>&quot;%1&quot; is not a regular file.</source>
        <translation>„%1“ ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than 1 MiB.</source>
        <translation>„%1“ ist größer als 1 MiB.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a line of more than 64 KiB.</source>
        <translation>„%1“ hat eine Zeile von mehr als 64 KiB.</translation>
    </message>
</context>
<context>
    <name>DeleteSelectPage</name>
    <message>
        <source>Delete Items</source>
        <translation>Elemente löschen</translation>
    </message>
    <message>
        <source>Select Items</source>
        <translation>Elemente wählen</translation>
    </message>
    <message>
        <source>Select the files and/or directories to delete from the backup set storage</source>
        <translation>Wählen Sie die Dateien und Ordner, die aus dem Speicher des Sicherungssatzes gelöscht werden</translation>
    </message>
    <message>
        <source>Items to Delete</source>
        <translation>Zu löschende Elemente</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>File F&amp;ilter:</source>
        <translation>&amp;Dateifilter:</translation>
    </message>
    <message>
        <source>Fil&amp;ter:</source>
        <translation>Fil&amp;ter:</translation>
    </message>
    <message>
        <source>Backed up on/&amp;after:</source>
        <translation>Ges&amp;ichert ab:</translation>
    </message>
    <message>
        <source>Backed up on or after</source>
        <translation>Gesichert ab</translation>
    </message>
    <message>
        <source>Only files &amp;removed since:</source>
        <translation>Nur entfe&amp;rnt seit:</translation>
    </message>
    <message>
        <source>Only files removed since</source>
        <translation>Nur Dateien, die entfernt wurden seit</translation>
    </message>
    <message>
        <source>Backed up on/&amp;before:</source>
        <translation>Gesichert &amp;bis:</translation>
    </message>
    <message>
        <source>Backed up on or before</source>
        <translation>Gesichert bis</translation>
    </message>
    <message>
        <source>Do not delete the &amp;last:</source>
        <translation>Die &amp;letzten behalten:</translation>
    </message>
    <message>
        <source>Generations that are not deleted</source>
        <translation>Generationen, die nicht gelöscht werden</translation>
    </message>
    <message>
        <source> generation(s)</source>
        <translation> Generation(en)</translation>
    </message>
    <message>
        <source>Remove backup set?</source>
        <translation>Sicherungssatz entfernen?</translation>
    </message>
    <message>
        <source>You have selected all data to be deleted.
Would you like to remove the backup set?</source>
        <translation>Sie haben alle Daten zum Löschen ausgewählt.
Möchten Sie den Sicherungssatz entfernen?</translation>
    </message>
</context>
<context>
    <name>ErrorBox</name>
    <message>
        <source>The agent gave no reason.</source>
        <translation>Der Agent hat keinen Grund genannt.</translation>
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
        <translation>Warnung</translation>
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
        <source>No events match the viewing filter.</source>
        <translation>Kein Ereignis passt zum Anzeigefilter.</translation>
    </message>
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
    <name>FindFileWindow</name>
    <message>
        <source>Find File</source>
        <translation>Datei suchen</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>File name or pattern</source>
        <translation>Dateiname oder Muster</translation>
    </message>
    <message>
        <source>part of a name, or a pattern such as *.docx</source>
        <translation>Teil eines Namens oder ein Muster wie *.docx</translation>
    </message>
    <message>
        <source>&amp;In:</source>
        <translation>&amp;In:</translation>
    </message>
    <message>
        <source>Backup set to search</source>
        <translation>Zu durchsuchender Sicherungssatz</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Files found</source>
        <translation>Gefundene Dateien</translation>
    </message>
    <message>
        <source>&amp;Generations</source>
        <translation>&amp;Generationen</translation>
    </message>
    <message>
        <source>&amp;Restore...</source>
        <translation>&amp;Wiederherstellen...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>All backup sets</source>
        <translation>Alle Sicherungssätze</translation>
    </message>
    <message>
        <source>Type a part of a name, or a pattern with * and ?.</source>
        <translation>Geben Sie einen Teil eines Namens oder ein Muster mit * und ? ein.</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Suche läuft</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>%1: %2 files found in %3 folders</source>
        <translation>%1: %2 Dateien in %3 Ordnern gefunden</translation>
    </message>
    <message>
        <source>%1, stopped because there are too many</source>
        <translation>%1, angehalten, weil es zu viele sind</translation>
    </message>
    <message>
        <source>%1, %2 could not be read (%3)</source>
        <translation>%1, %2 konnten nicht gelesen werden (%3)</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The file is no longer stored.</source>
        <translation>Die Datei ist nicht mehr gespeichert.</translation>
    </message>
</context>
<context>
    <name>FoundFilesModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Backup set</source>
        <translation>Sicherungssatz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Backed up</source>
        <translation>Gesichert</translation>
    </message>
    <message>
        <source>Generations</source>
        <translation>Generationen</translation>
    </message>
</context>
<context>
    <name>InitClntCfgDlg</name>
    <message>
        <source>Values imported: %1. Lines skipped: %2.</source>
        <translation>Werte importiert: %1. Zeilen übersprungen: %2.</translation>
    </message>
    <message>
        <source>Modify Tarn-Client Configuration</source>
        <translation>Konfiguration des Tarn-Clients ändern</translation>
    </message>
    <message>
        <source>Customer Registration Info</source>
        <translation>Registrierungsdaten des Kunden</translation>
    </message>
    <message>
        <source>Customer &amp;Name</source>
        <translation>Kunden&amp;name</translation>
    </message>
    <message>
        <source>Customer name</source>
        <translation>Kundenname</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>&amp;Durchsuchen</translation>
    </message>
    <message>
        <source>Acc&amp;ount #</source>
        <translation>K&amp;onto-Nr.</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Kontonummer</translation>
    </message>
    <message>
        <source>Tarn-C&amp;lient #</source>
        <translation>Tarn-Cl&amp;ient-Nr.</translation>
    </message>
    <message>
        <source>Tarn-Client number</source>
        <translation>Tarn-Client-Nummer</translation>
    </message>
    <message>
        <source>Tarn-System Operation Port #</source>
        <translation>Port des Tarn-Systems</translation>
    </message>
    <message>
        <source>Tarn-System Info</source>
        <translation>Tarn-System</translation>
    </message>
    <message>
        <source>Addr&amp;ess</source>
        <translation>Adr&amp;esse</translation>
    </message>
    <message>
        <source>Tarn-System address to add</source>
        <translation>Neue Adresse eines Tarn-Systems</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>Tarn-System addresses</source>
        <translation>Adressen von Tarn-Systemen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>Entfe&amp;rnen</translation>
    </message>
    <message>
        <source>Encryption Keys</source>
        <translation>Schlüssel für die Verschlüsselung</translation>
    </message>
    <message>
        <source>Private Key</source>
        <translation>Privater Schlüssel</translation>
    </message>
    <message>
        <source>&amp;Type</source>
        <translation>&amp;Typ</translation>
    </message>
    <message>
        <source>Private key type</source>
        <translation>Typ des privaten Schlüssels</translation>
    </message>
    <message>
        <source>&amp;Key</source>
        <translation>&amp;Schlüssel</translation>
    </message>
    <message>
        <source>Private key</source>
        <translation>Privater Schlüssel</translation>
    </message>
    <message>
        <source>Con&amp;firm</source>
        <translation>&amp;Bestätigung</translation>
    </message>
    <message>
        <source>Confirm private key</source>
        <translation>Privaten Schlüssel bestätigen</translation>
    </message>
    <message>
        <source>Account Key</source>
        <translation>Kontoschlüssel</translation>
    </message>
    <message>
        <source>Ty&amp;pe</source>
        <translation>T&amp;yp</translation>
    </message>
    <message>
        <source>Account key type</source>
        <translation>Typ des Kontoschlüssels</translation>
    </message>
    <message>
        <source>Ke&amp;y</source>
        <translation>S&amp;chlüssel</translation>
    </message>
    <message>
        <source>Account key</source>
        <translation>Kontoschlüssel</translation>
    </message>
    <message>
        <source>C&amp;onfirm</source>
        <translation>Bestäti&amp;gung</translation>
    </message>
    <message>
        <source>Confirm account key</source>
        <translation>Kontoschlüssel bestätigen</translation>
    </message>
    <message>
        <source>Allo&amp;w encryption forwarding to Tarn-System</source>
        <translation>Weiterleitung der Schlüssel an das Tarn-System erla&amp;uben</translation>
    </message>
    <message>
        <source>&lt;font color=#FF0000&gt;WARNING:&lt;/font&gt;</source>
        <translation>&lt;font color=#FF0000&gt;WARNUNG:&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font color=#FF0000&gt;IF THESE ENCRYPTION KEYS ARE LOST, NOBODY CAN EVER RESTORE YOUR DATA!&lt;/font&gt;</source>
        <translation>&lt;font color=#FF0000&gt;OHNE DIESE SCHLÜSSEL KANN NIEMAND IHRE DATEN JE WIEDERHERSTELLEN!&lt;/font&gt;</translation>
    </message>
    <message>
        <source>User Info</source>
        <translation>Angaben zum Benutzer</translation>
    </message>
    <message>
        <source>Co&amp;untry</source>
        <translation>&amp;Land</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Nu&amp;mber of Employees</source>
        <translation>Anzahl der &amp;Mitarbeiter</translation>
    </message>
    <message>
        <source>Number of employees</source>
        <translation>Anzahl der Mitarbeiter</translation>
    </message>
    <message>
        <source>1 - 50</source>
        <translation>1 – 50</translation>
    </message>
    <message>
        <source>51 - 200</source>
        <translation>51 – 200</translation>
    </message>
    <message>
        <source>201 - 500</source>
        <translation>201 – 500</translation>
    </message>
    <message>
        <source>501 - 1,000</source>
        <translation>501 – 1.000</translation>
    </message>
    <message>
        <source>1,001 - 5,000</source>
        <translation>1.001 – 5.000</translation>
    </message>
    <message>
        <source>5,001 - 10,000</source>
        <translation>5.001 – 10.000</translation>
    </message>
    <message>
        <source>More than 10,000</source>
        <translation>Mehr als 10.000</translation>
    </message>
    <message>
        <source>Industry &amp;Verticals</source>
        <translation>Wirtschafts&amp;zweig</translation>
    </message>
    <message>
        <source>Industry verticals</source>
        <translation>Wirtschaftszweig</translation>
    </message>
    <message>
        <source>Manufacturing and energy</source>
        <translation>Produktion und Energie</translation>
    </message>
    <message>
        <source>Retail and wholesale trade</source>
        <translation>Einzel- und Großhandel</translation>
    </message>
    <message>
        <source>Utilities and telecommunications</source>
        <translation>Versorgung und Telekommunikation</translation>
    </message>
    <message>
        <source>Computer - hardware, software</source>
        <translation>Computer – Hardware, Software</translation>
    </message>
    <message>
        <source>Business services and construction</source>
        <translation>Unternehmensdienste und Bau</translation>
    </message>
    <message>
        <source>Media, entertainment, and leisure</source>
        <translation>Medien, Unterhaltung und Freizeit</translation>
    </message>
    <message>
        <source>Financial services and insurance</source>
        <translation>Finanzdienste und Versicherungen</translation>
    </message>
    <message>
        <source>Public sector and healthcare</source>
        <translation>Öffentlicher Dienst und Gesundheit</translation>
    </message>
    <message>
        <source>Connect to &amp;Tarn-System and verify information</source>
        <translation>Mit dem Tarn-System &amp;verbinden und Angaben prüfen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Afghanistan</source>
        <translation>Afghanistan</translation>
    </message>
    <message>
        <source>Åland Islands</source>
        <translation>Ålandinseln</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>Albanien</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>Algerien</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>Amerikanisch-Samoa</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>Andorra</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>Angola</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>Anguilla</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>Antarktis</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>Antigua und Barbuda</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>Argentinien</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>Armenien</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>Aruba</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Australien</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Österreich</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>Aserbaidschan</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>Bahamas</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>Bahrain</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>Bangladesch</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>Barbados</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>Belarus</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>Belgien</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>Belize</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>Benin</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>Bermuda</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>Bhutan</translation>
    </message>
    <message>
        <source>Bolivia, Plurinational State of</source>
        <translation>Bolivien, Plurinationaler Staat</translation>
    </message>
    <message>
        <source>Bonaire, Sint Eustatius and Saba</source>
        <translation>Bonaire, Sint Eustatius und Saba</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>Bosnien und Herzegowina</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>Botswana</translation>
    </message>
    <message>
        <source>Bouvet Island</source>
        <translation>Bouvetinsel</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brasilien</translation>
    </message>
    <message>
        <source>British Indian Ocean Territory</source>
        <translation>Britisches Territorium im Indischen Ozean</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>Brunei Darussalam</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>Bulgarien</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>Burkina Faso</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>Burundi</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>Kambodscha</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>Kamerun</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Kanada</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>Kap Verde</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>Kaimaninseln</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>Zentralafrikanische Republik</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>Tschad</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>Chile</translation>
    </message>
    <message>
        <source>China</source>
        <translation>China</translation>
    </message>
    <message>
        <source>Christmas Island</source>
        <translation>Weihnachtsinsel</translation>
    </message>
    <message>
        <source>Cocos (Keeling) Islands</source>
        <translation>Kokosinseln (Keelinginseln)</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>Kolumbien</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>Komoren</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>Kongo</translation>
    </message>
    <message>
        <source>Congo, the Democratic Republic of the</source>
        <translation>Kongo, Demokratische Republik</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>Cookinseln</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>Costa Rica</translation>
    </message>
    <message>
        <source>Côte d&apos;Ivoire</source>
        <translation>Côte d&apos;Ivoire</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>Kroatien</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>Kuba</translation>
    </message>
    <message>
        <source>Curaçao</source>
        <translation>Curaçao</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>Zypern</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Tschechische Republik</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Dänemark</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>Dschibuti</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>Dominica</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>Dominikanische Republik</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>Ecuador</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>Ägypten</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>El Salvador</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>Äquatorialguinea</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>Eritrea</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>Estland</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>Äthiopien</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>Falklandinseln (Malwinen)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>Färöer</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>Fidschi</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finnland</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Frankreich</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>Französisch-Guayana</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>Französisch-Polynesien</translation>
    </message>
    <message>
        <source>French Southern Territories</source>
        <translation>Französische Süd- und Antarktisgebiete</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>Gabun</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>Gambia</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>Georgien</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Deutschland</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>Ghana</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>Gibraltar</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>Griechenland</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>Grönland</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>Grenada</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>Guadeloupe</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>Guam</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>Guatemala</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>Guernsey</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>Guinea</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>Guinea-Bissau</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>Guyana</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>Haiti</translation>
    </message>
    <message>
        <source>Heard Island and McDonald Islands</source>
        <translation>Heard und McDonaldinseln</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>Heiliger Stuhl (Vatikanstadt)</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>Honduras</translation>
    </message>
    <message>
        <source>Hong Kong</source>
        <translation>Hongkong</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Ungarn</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>Island</translation>
    </message>
    <message>
        <source>India</source>
        <translation>Indien</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>Indonesien</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>Iran, Islamische Republik</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>Irak</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>Irland</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>Isle of Man</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>Israel</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>Italien</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>Jamaika</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japan</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>Jersey</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>Jordanien</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>Kasachstan</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>Kenia</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>Kiribati</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;s Republic of</source>
        <translation>Korea, Demokratische Volksrepublik</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>Korea, Republik</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Kuwait</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>Kirgisistan</translation>
    </message>
    <message>
        <source>Lao People&apos;s Democratic Republic</source>
        <translation>Laos, Demokratische Volksrepublik</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>Lettland</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>Libanon</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>Lesotho</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>Liberia</translation>
    </message>
    <message>
        <source>Libya</source>
        <translation>Libyen</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Liechtenstein</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>Litauen</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>Luxemburg</translation>
    </message>
    <message>
        <source>Macao</source>
        <translation>Macao</translation>
    </message>
    <message>
        <source>Macedonia, the former Yugoslav Republic of</source>
        <translation>Mazedonien, ehemalige jugoslawische Republik</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>Madagaskar</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>Malawi</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>Malaysia</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>Malediven</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>Mali</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>Malta</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>Marshallinseln</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>Martinique</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>Mauretanien</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>Mauritius</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>Mayotte</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>Mexiko</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>Mikronesien, Föderierte Staaten von</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>Moldau, Republik</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>Monaco</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>Mongolei</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>Montenegro</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>Montserrat</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>Marokko</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>Mosambik</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Myanmar</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>Namibia</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>Nauru</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>Nepal</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Niederlande</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>Neukaledonien</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Neuseeland</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>Nicaragua</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>Niger</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>Nigeria</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>Niue</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>Norfolkinsel</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>Nördliche Marianen</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Norwegen</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>Oman</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>Pakistan</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>Palau</translation>
    </message>
    <message>
        <source>Palestine, State of</source>
        <translation>Palästina, Staat</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>Panama</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>Papua-Neuguinea</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>Paraguay</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>Philippinen</translation>
    </message>
    <message>
        <source>Pitcairn</source>
        <translation>Pitcairninseln</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Polen</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portugal</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>Puerto Rico</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Katar</translation>
    </message>
    <message>
        <source>Réunion</source>
        <translation>Réunion</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Rumänien</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>Russische Föderation</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>Ruanda</translation>
    </message>
    <message>
        <source>Saint Barthélemy</source>
        <translation>Saint Barthélemy</translation>
    </message>
    <message>
        <source>Saint Helena, Ascension and Tristan da Cunha</source>
        <translation>St. Helena, Ascension und Tristan da Cunha</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>St. Kitts und Nevis</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>St. Lucia</translation>
    </message>
    <message>
        <source>Saint Martin (French part)</source>
        <translation>St. Martin (französischer Teil)</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>St. Pierre und Miquelon</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>St. Vincent und die Grenadinen</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>Samoa</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>San Marino</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>São Tomé und Príncipe</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>Saudi-Arabien</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>Senegal</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>Serbien</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>Seychellen</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>Sierra Leone</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Singapur</translation>
    </message>
    <message>
        <source>Sint Maarten (Dutch part)</source>
        <translation>Sint Maarten (niederländischer Teil)</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>Slowakei</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>Slowenien</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>Salomonen</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>Somalia</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>Südafrika</translation>
    </message>
    <message>
        <source>South Georgia and the South Sandwich Islands</source>
        <translation>Südgeorgien und die Südlichen Sandwichinseln</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>Südsudan</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>Spanien</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>Sri Lanka</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>Sudan</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>Suriname</translation>
    </message>
    <message>
        <source>Svalbard and Jan Mayen</source>
        <translation>Spitzbergen und Jan Mayen</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>Swasiland</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Schweden</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Schweiz</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>Syrien, Arabische Republik</translation>
    </message>
    <message>
        <source>Taiwan, Province of China</source>
        <translation>Taiwan, Provinz Chinas</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>Tadschikistan</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>Tansania, Vereinigte Republik</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>Thailand</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>Timor-Leste</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>Togo</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>Tokelau</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>Tonga</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>Trinidad und Tobago</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>Tunesien</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Türkei</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>Turkmenistan</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>Turks- und Caicosinseln</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>Tuvalu</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>Uganda</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ukraine</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>Vereinigte Arabische Emirate</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Vereinigtes Königreich</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>Vereinigte Staaten</translation>
    </message>
    <message>
        <source>United States Minor Outlying Islands</source>
        <translation>Kleinere Amerikanische Überseeinseln</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>Uruguay</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>Usbekistan</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>Vanuatu</translation>
    </message>
    <message>
        <source>Venezuela, Bolivarian Republic of</source>
        <translation>Venezuela, Bolivarische Republik</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>Vietnam</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>Britische Jungferninseln</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>Amerikanische Jungferninseln</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>Wallis und Futuna</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>Westsahara</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>Jemen</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>Sambia</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>Simbabwe</translation>
    </message>
    <message>
        <source>Initial Tarn-Client Configuration</source>
        <translation>Ersteinrichtung des Tarn-Clients</translation>
    </message>
    <message>
        <source>Please choose CRI file</source>
        <translation>CRI-Datei wählen</translation>
    </message>
    <message>
        <source>CRI Files (*.cri)</source>
        <translation>CRI-Dateien (*.cri)</translation>
    </message>
    <message>
        <source>Configuration Error</source>
        <translation>Konfigurationsfehler</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Tarn-Client Registration Information is saved and registered successfully.</source>
        <translation>Die Registrierungsdaten des Tarn-Clients wurden gespeichert und der Tarn-Client wurde registriert.</translation>
    </message>
    <message>
        <source>Tarn-Client Registration Information is saved successfully.</source>
        <translation>Die Registrierungsdaten des Tarn-Clients wurden gespeichert.</translation>
    </message>
    <message>
        <source>Customer name is needed for initialization.</source>
        <translation>Für die Einrichtung wird der Kundenname benötigt.</translation>
    </message>
    <message>
        <source>Account Number is needed for initialization.</source>
        <translation>Für die Einrichtung wird die Kontonummer benötigt.</translation>
    </message>
    <message>
        <source>Client Number is needed for initialization.</source>
        <translation>Für die Einrichtung wird die Client-Nummer benötigt.</translation>
    </message>
    <message>
        <source>Client number needs to have %1 characters.</source>
        <translation>Die Client-Nummer muss %1 Zeichen haben.</translation>
    </message>
    <message>
        <source>Need at least one Tarn-System address for initialization.</source>
        <translation>Für die Einrichtung wird mindestens eine Adresse eines Tarn-Systems benötigt.</translation>
    </message>
    <message>
        <source>The private encryption keys you typed do not match.</source>
        <translation>Die eingegebenen privaten Schlüssel stimmen nicht überein.</translation>
    </message>
    <message>
        <source>Private key is needed for initialization.</source>
        <translation>Für die Einrichtung wird der private Schlüssel benötigt.</translation>
    </message>
    <message>
        <source>Please select &quot;NONE&quot; as the account key ecnryption type if you want to input the empty account key!!</source>
        <translation>Bitte wählen Sie als Typ des Kontoschlüssels „NONE“, wenn der Kontoschlüssel leer bleiben soll!</translation>
    </message>
    <message>
        <source>The account encryption keys you typed do not match.</source>
        <translation>Die eingegebenen Kontoschlüssel stimmen nicht überein.</translation>
    </message>
    <message>
        <source>Please select a country.</source>
        <translation>Bitte wählen Sie ein Land.</translation>
    </message>
    <message>
        <source>Please select a number of employees.</source>
        <translation>Bitte wählen Sie die Anzahl der Mitarbeiter.</translation>
    </message>
    <message>
        <source>Please select a industry vertical.</source>
        <translation>Bitte wählen Sie einen Wirtschaftszweig.</translation>
    </message>
</context>
<context>
    <name>Insight</name>
    <message>
        <source>1 error</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>The last backup ended with %1, so some files may not be stored as they are now. Look at its events, fix the cause and back up again.</source>
        <translation>Die letzte Sicherung endete mit %1, daher sind einige Dateien vielleicht nicht auf dem jetzigen Stand gespeichert. Sehen Sie sich die Ereignisse an, beheben Sie die Ursache und sichern Sie erneut.</translation>
    </message>
    <message>
        <source>The last backup did not succeed. Look at the events, fix the cause and back up again.</source>
        <translation>Die letzte Sicherung ist nicht gelungen. Sehen Sie sich die Ereignisse an, beheben Sie die Ursache und sichern Sie erneut.</translation>
    </message>
    <message>
        <source>The last scheduled backup did not run, and the hour in which the agent makes up for it is over. Back up now, and check whether the computer is on at the scheduled time.</source>
        <translation>Die letzte geplante Sicherung ist ausgefallen, und die Stunde, in der der Agent sie nachholt, ist vorbei. Sichern Sie jetzt, und prüfen Sie, ob der Computer zur geplanten Zeit eingeschaltet ist.</translation>
    </message>
    <message>
        <source>The last scheduled backup did not run, and the %1 hours in which the agent makes up for it are over. Back up now, and check whether the computer is on at the scheduled time.</source>
        <translation>Die letzte geplante Sicherung ist ausgefallen, und die %1 Stunden, in denen der Agent sie nachholt, sind vorbei. Sichern Sie jetzt, und prüfen Sie, ob der Computer zur geplanten Zeit eingeschaltet ist.</translation>
    </message>
    <message>
        <source>The last good backup is %1 old, which is more than two intervals of the schedule. Back up now, and check whether the computer is on at the scheduled time.</source>
        <translation>Die letzte gute Sicherung ist %1 alt, also älter als zwei Abstände des Zeitplans. Sichern Sie jetzt, und prüfen Sie, ob der Computer zur geplanten Zeit eingeschaltet ist.</translation>
    </message>
    <message>
        <source>The last backup succeeded. The set has no schedule: back it up when its data has changed.</source>
        <translation>Die letzte Sicherung ist gelungen. Der Satz hat keinen Zeitplan: Sichern Sie ihn, wenn sich seine Daten geändert haben.</translation>
    </message>
    <message>
        <source>The last backup succeeded. The schedule has not been read yet, so nothing says whether a backup is overdue.</source>
        <translation>Die letzte Sicherung ist gelungen. Der Zeitplan wurde noch nicht gelesen, daher ist nicht bekannt, ob eine Sicherung überfällig ist.</translation>
    </message>
    <message>
        <source>The last backup succeeded, and the next one follows by schedule.</source>
        <translation>Die letzte Sicherung ist gelungen, und die nächste folgt nach Zeitplan.</translation>
    </message>
    <message>
        <source>No backup of this set has succeeded yet, so nothing can be restored. Look at the events, fix the cause and back up again.</source>
        <translation>Noch ist keine Sicherung dieses Satzes gelungen, daher kann nichts wiederhergestellt werden. Sehen Sie sich die Ereignisse an, beheben Sie die Ursache und sichern Sie erneut.</translation>
    </message>
    <message>
        <source>Nothing of this set is stored yet, so nothing can be restored. Back up now.</source>
        <translation>Von diesem Satz ist noch nichts gespeichert, daher kann nichts wiederhergestellt werden. Sichern Sie jetzt.</translation>
    </message>
    <message>
        <source>The agent and the storage server disagree on what is stored, and until they agree the set is not backed up. Synchronize it.</source>
        <translation>Agent und Speicherserver sind sich nicht einig, was gespeichert ist, und bis dahin wird der Satz nicht gesichert. Synchronisieren Sie ihn.</translation>
    </message>
    <message>
        <source>This set was recovered and has no items, so nothing new is backed up. Edit its items, schedule and retention.</source>
        <translation>Dieser Satz wurde gerettet und hat keine Elemente, daher wird nichts Neues gesichert. Bearbeiten Sie seine Elemente, seinen Zeitplan und seine Aufbewahrung.</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>a size in one second</comment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 files/s</source>
        <translation>%1 Dateien/s</translation>
    </message>
    <message>
        <source>Never backed up</source>
        <translation>Nie gesichert</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>Not in sync</source>
        <translation>Nicht synchron</translation>
    </message>
    <message>
        <source>Recovered</source>
        <translation>Gerettet</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Safe</source>
        <translation>Sicher</translation>
    </message>
    <message>
        <source>1 day</source>
        <translation>1 Tag</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 Tage</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 Minuten</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>weniger als eine Minute</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>1 day ago</source>
        <translation>vor 1 Tag</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>vor %1 Tagen</translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <translation>vor 1 Stunde</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>vor %1 Stunden</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <translation>vor 1 Minute</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>vor %1 Minuten</translation>
    </message>
    <message>
        <source>no errors</source>
        <translation>ohne Fehler</translation>
    </message>
    <message>
        <source>The agent is working on this set.</source>
        <translation>Der Agent arbeitet an diesem Satz.</translation>
    </message>
    <message>
        <source>%1 Until it is done: %2</source>
        <translation>%1 Bis dahin: %2</translation>
    </message>
    <message>
        <source>No backup sets</source>
        <translation>Keine Sicherungssätze</translation>
    </message>
    <message>
        <source>The backup set needs attention</source>
        <translation>Sicherungssatz prüfen</translation>
    </message>
    <message>
        <source>1 of %1 sets needs attention</source>
        <translation>1 von %1 Sätzen prüfen</translation>
    </message>
    <message>
        <source>%1 of %2 sets need attention</source>
        <translation>%1 von %2 Sätzen prüfen</translation>
    </message>
    <message>
        <source>1 set, no failure</source>
        <translation>1 Satz, kein Fehlschlag</translation>
    </message>
    <message>
        <source>%1 sets, no failures</source>
        <translation>%1 Sätze, keine Fehlschläge</translation>
    </message>
    <message>
        <source>The backup set is safe</source>
        <translation>Der Sicherungssatz ist sicher</translation>
    </message>
    <message>
        <source>All %1 sets are safe</source>
        <translation>Alle %1 Sätze sind sicher</translation>
    </message>
    <message>
        <source>no progress for %1 min</source>
        <translation>seit %1 min kein Fortschritt</translation>
    </message>
    <message>
        <source>%1, %2 left</source>
        <translation>%1, noch %2</translation>
    </message>
    <message>
        <source>%1 ended with %2</source>
        <translation>%1 endete: %2</translation>
    </message>
    <message>
        <source>%1 of &apos;%2&apos; ended with %3</source>
        <translation>%1 von „%2“ endete: %3</translation>
    </message>
</context>
<context>
    <name>ItemsSelectPage</name>
    <message>
        <source>This set leaves out %1 path(s), which can&apos;t be shown with a specific location. Finishing the wizard removes these exclusions.</source>
        <translation>Dieser Sicherungssatz lässt %1 Pfad(e) aus, die sich bei einem bestimmten Ort nicht zeigen lassen. Wenn Sie den Assistenten fertigstellen, werden diese Ausschlüsse entfernt.</translation>
    </message>
    <message>
        <source>Select Items</source>
        <translation>Elemente wählen</translation>
    </message>
    <message>
        <source>Select the items to backup</source>
        <translation>Wählen Sie die Elemente, die gesichert werden</translation>
    </message>
    <message>
        <source>Files To Backup</source>
        <translation>Zu sichernde Dateien</translation>
    </message>
    <message>
        <source>&amp;All Files</source>
        <translation>A&amp;lle Dateien</translation>
    </message>
    <message>
        <source>&amp;Documents</source>
        <translation>&amp;Dokumente</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>&amp;Videos</translation>
    </message>
    <message>
        <source>&amp;Pictures</source>
        <translation>&amp;Bilder</translation>
    </message>
    <message>
        <source>&amp;Music</source>
        <translation>&amp;Musik</translation>
    </message>
    <message>
        <source>&amp;Email</source>
        <translation>&amp;E-Mails</translation>
    </message>
    <message>
        <source>Cus&amp;tom file extensions (separate by &quot;|&quot;):</source>
        <translation>Ei&amp;gene Dateiendungen (durch „|“ getrennt):</translation>
    </message>
    <message>
        <source>Custom file extensions</source>
        <translation>Eigene Dateiendungen</translation>
    </message>
    <message>
        <source>E&amp;xclude temporary files</source>
        <translation>&amp;Temporäre Dateien ausschließen</translation>
    </message>
    <message>
        <source>*.tmp, *.swp</source>
        <translation>*.tmp, *.swp</translation>
    </message>
    <message>
        <source>Exclu&amp;de backup files</source>
        <translation>Siche&amp;rungskopien ausschließen</translation>
    </message>
    <message>
        <source>*.bak</source>
        <translation>*.bak</translation>
    </message>
    <message>
        <source>Exc&amp;lude file extensions (separate by &quot;|&quot;):</source>
        <translation>Dateie&amp;ndungen ausschließen (durch „|“ getrennt):</translation>
    </message>
    <message>
        <source>Excluded file extensions</source>
        <translation>Ausgeschlossene Dateiendungen</translation>
    </message>
    <message>
        <source>Data Location</source>
        <translation>Ort der Daten</translation>
    </message>
    <message>
        <source>&amp;Specific Location:</source>
        <translation>Be&amp;stimmter Ort:</translation>
    </message>
    <message>
        <source>Specific location</source>
        <translation>Bestimmter Ort</translation>
    </message>
    <message>
        <source>C&amp;ustom:</source>
        <translation>Ben&amp;utzerdefiniert:</translation>
    </message>
    <message>
        <source>Items to back up</source>
        <translation>Zu sichernde Elemente</translation>
    </message>
</context>
<context>
    <name>LogKeywords</name>
    <message>
        <source>set</source>
        <translation>satz</translation>
    </message>
    <message>
        <source>type</source>
        <translation>typ</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>fehler</translation>
    </message>
    <message>
        <source>warnings</source>
        <translation>warnungen</translation>
    </message>
</context>
<context>
    <name>LogSearchBar</name>
    <message>
        <source>No rows match the search.</source>
        <translation>Keine Zeile entspricht der Suche.</translation>
    </message>
    <message>
        <source>Sea&amp;rch:</source>
        <translation>S&amp;uche:</translation>
    </message>
    <message>
        <source>Search in the log</source>
        <translation>Im Protokoll suchen</translation>
    </message>
    <message>
        <source>Words in any column; set:name, type:name, errors and warnings narrow further</source>
        <translation>Wörter in irgendeiner Spalte; satz:Name, typ:Name, fehler und warnungen grenzen weiter ein</translation>
    </message>
    <message>
        <source>words, set:name, type:name, errors</source>
        <translation>Wörter, satz:Name, typ:Name, fehler</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schweregrad</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Warnungen und Fehler</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 shown, %2 hidden</source>
        <translation>%1 gezeigt, %2 verborgen</translation>
    </message>
    <message>
        <source>Export Log</source>
        <translation>Protokoll exportieren</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; cannot be written: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Severit&amp;y:</source>
        <translation>Sch&amp;weregrad:</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
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
        <translation>&amp;Benutzername:</translation>
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
        <translation>Als aktueller Ben&amp;utzer anmelden</translation>
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
    <name>NextRunsModel</name>
    <message>
        <source>with another set</source>
        <translation>mit anderem Satz</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Backup set</source>
        <translation>Sicherungssatz</translation>
    </message>
    <message>
        <source>Likely end</source>
        <translation>Ende etwa</translation>
    </message>
    <message>
        <source>Overlap</source>
        <translation>Überschneidung</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Höher</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Niedriger</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Suchen in:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Zurückgehen</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Vorwärtsgehen</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Übergeordneter Ordner</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Zum übergeordneten Ordner gehen</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Einen neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Als Liste anzeigen</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mit Details anzeigen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Dateityp:</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>&amp;Versteckte Dateien anzeigen</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Zuletzt besucht</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Anzeigen: </translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete '%1'?</source>
        <translation>Möchten Sie „%1“ wirklich löschen?</translation>
    </message>
    <message>
        <source>'%1' is write protected.
Do you want to delete it anyway?</source>
        <translation>„%1“ ist schreibgeschützt.
Möchten Sie trotzdem löschen?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Der Ordner konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Der Ordner wurde nicht gefunden.
Bitte prüfen Sie den Namen des Ordners.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Die Datei wurde nicht gefunden.
Bitte prüfen Sie den Dateinamen.</translation>
    </message>
    <message>
        <source>Folder</source>
        <comment>All other platforms</comment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File Folder</source>
        <comment>Match Windows Explorer</comment>
        <translation>Dateiordner</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <comment>All other platforms</comment>
        <translation>Verknüpfung</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Änderungsdatum</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Mein Computer</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Ungültiger Dateiname</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Der Name „%1“ kann nicht verwendet werden.&lt;/b&gt;&lt;p&gt;Versuchen Sie einen anderen Namen, mit weniger Zeichen oder ohne Satzzeichen.</translation>
    </message>
    <message>
        <source>Type</source>
        <comment>All other platforms</comment>
        <translation>Typ</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
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
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>RecoveryDlg</name>
    <message>
        <source>Recovery</source>
        <translation>Rettung</translation>
    </message>
    <message>
        <source>&amp;Recover Orphaned Backup Sets (no orphaned backup sets were found during the last Admin Process)</source>
        <translation>&amp;Verwaiste Sicherungssätze retten (beim letzten Verwaltungslauf wurden keine gefunden)</translation>
    </message>
    <message>
        <source>R&amp;ecover Backup History Database from the cloud</source>
        <translation>&amp;Datenbank des Sicherungsverlaufs aus der Cloud retten</translation>
    </message>
    <message>
        <source>&amp;Recover orphaned backup sets (Found %1 orphaned backup set(s))</source>
        <translation>&amp;Verwaiste Sicherungssätze retten (%1 gefunden)</translation>
    </message>
    <message>
        <source>Tarn-Client Database Recovery Error</source>
        <translation>Fehler beim Retten der Tarn-Client-Datenbank</translation>
    </message>
    <message>
        <source>Recover Database</source>
        <translation>Datenbank retten</translation>
    </message>
    <message>
        <source>The current database will be overwritten.
After recovery, you have to restart ostrand backup service.
Are you sure you want to recover database?</source>
        <translation>Die aktuelle Datenbank wird überschrieben.
Danach muss der Dienst Ostrand Backup neu gestartet werden.
Möchten Sie die Datenbank wirklich aus der Cloud retten?</translation>
    </message>
</context>
<context>
    <name>RegisterDlg</name>
    <message>
        <source>Re-Register</source>
        <translation>Neu registrieren</translation>
    </message>
    <message>
        <source>Registration Info</source>
        <translation>Registrierungsdaten</translation>
    </message>
    <message>
        <source>Customer Name:</source>
        <translation>Kundenname:</translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation>Kundenname</translation>
    </message>
    <message>
        <source>Account Number:</source>
        <translation>Kontonummer:</translation>
    </message>
    <message>
        <source>Account Number</source>
        <translation>Kontonummer</translation>
    </message>
    <message>
        <source>Tarn-Client Number:</source>
        <translation>Tarn-Client-Nummer:</translation>
    </message>
    <message>
        <source>Tarn-Client Number</source>
        <translation>Tarn-Client-Nummer</translation>
    </message>
    <message>
        <source>NOTE: Tarn-Client registration ensures secure access to the Tarn-System. You must coordinate this activity with your Service Provider.</source>
        <translation>HINWEIS: Die Registrierung des Tarn-Clients sorgt für sicheren Zugang zum Tarn-System. Stimmen Sie diesen Schritt mit Ihrem Dienstanbieter ab.</translation>
    </message>
    <message>
        <source>&amp;Re-Register</source>
        <translation>&amp;Neu registrieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Registering...</source>
        <translation>Registrierung läuft …</translation>
    </message>
    <message>
        <source>Tarn-Client successfully registered with Tarn-System.</source>
        <translation>Der Tarn-Client wurde am Tarn-System registriert.</translation>
    </message>
</context>
<context>
    <name>RestoreDirectoryDestination</name>
    <message>
        <source>Select Restore Directory</source>
        <translation>Ordner für die Wiederherstellung wählen</translation>
    </message>
    <message>
        <source>Restore to:</source>
        <translation>Wiederherstellen in:</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Show the directories</source>
        <translation>Ordner zeigen</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>restore_%1</source>
        <translation>wiederherstellung_%1</translation>
    </message>
    <message>
        <source>Select the directory where the restore should be performed in. The restored data will be placed in a subdirectory named &apos;&apos;%1&apos;&apos;</source>
        <translation>Wählen Sie den Ordner, in dem wiederhergestellt wird. Die wiederhergestellten Daten kommen in einen Unterordner namens &apos;&apos;%1&apos;&apos;</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>RestoreLocationPage</name>
    <message>
        <source>WizardPage</source>
        <translation>WizardPage</translation>
    </message>
    <message>
        <source>Restore Destination</source>
        <translation>Ziel der Wiederherstellung</translation>
    </message>
    <message>
        <source>Select the destination for the restore</source>
        <translation>Wählen Sie das Ziel der Wiederherstellung</translation>
    </message>
    <message>
        <source>&amp;Original location</source>
        <translation>&amp;Ursprünglicher Ort</translation>
    </message>
    <message>
        <source>O&amp;riginal computer, alternate directory</source>
        <translation>U&amp;rsprünglicher Computer, anderer Ordner</translation>
    </message>
    <message>
        <source>&amp;Alternate computer/directory</source>
        <translation>A&amp;nderer Computer/Ordner</translation>
    </message>
    <message>
        <source>Restore Reason</source>
        <translation>Grund der Wiederherstellung</translation>
    </message>
    <message>
        <source>Restore reason</source>
        <translation>Grund der Wiederherstellung</translation>
    </message>
    <message>
        <source>Human Factor</source>
        <translation>Menschlicher Faktor</translation>
    </message>
    <message>
        <source>    Device lost or stolen</source>
        <translation>    Gerät verloren oder gestohlen</translation>
    </message>
    <message>
        <source>    User error/Accidental Data Deletion</source>
        <translation>    Benutzerfehler/Daten versehentlich gelöscht</translation>
    </message>
    <message>
        <source>    User data deletion - malicious intent</source>
        <translation>    Daten vom Benutzer gelöscht - böse Absicht</translation>
    </message>
    <message>
        <source>    Data stolen</source>
        <translation>    Daten gestohlen</translation>
    </message>
    <message>
        <source>    Access to a previous generation of the data</source>
        <translation>    Zugriff auf eine frühere Generation der Daten</translation>
    </message>
    <message>
        <source>Internal cause</source>
        <translation>Innere Ursache</translation>
    </message>
    <message>
        <source>    Data loss - Hardware malfunction</source>
        <translation>    Datenverlust - Fehler der Hardware</translation>
    </message>
    <message>
        <source>    Data loss - Software malfunction</source>
        <translation>    Datenverlust - Fehler der Software</translation>
    </message>
    <message>
        <source>External cause</source>
        <translation>Äußere Ursache</translation>
    </message>
    <message>
        <source>    Natural disasters</source>
        <translation>    Naturkatastrophen</translation>
    </message>
    <message>
        <source>    Power outages</source>
        <translation>    Stromausfälle</translation>
    </message>
</context>
<context>
    <name>RestoreSelectPage</name>
    <message>
        <source>Delete Items</source>
        <translation>Elemente löschen</translation>
    </message>
    <message>
        <source>Select Items</source>
        <translation>Elemente wählen</translation>
    </message>
    <message>
        <source>Select the files and/or directories to restore</source>
        <translation>Wählen Sie die Dateien und Ordner, die wiederhergestellt werden</translation>
    </message>
    <message>
        <source>Items to Restore</source>
        <translation>Wiederherzustellende Elemente</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>File &amp;Filter:</source>
        <translation>Dateifil&amp;ter:</translation>
    </message>
    <message>
        <source>&amp;Generations</source>
        <translation>&amp;Generationen</translation>
    </message>
    <message>
        <source>Time f&amp;ilter</source>
        <translation>Z&amp;eitfilter</translation>
    </message>
    <message>
        <source>Backed up on/&amp;after:</source>
        <translation>Gesi&amp;chert ab:</translation>
    </message>
    <message>
        <source>Backed up on or after</source>
        <translation>Gesichert ab</translation>
    </message>
    <message>
        <source>Backed up on/&amp;before:</source>
        <translation>Gesichert &amp;bis:</translation>
    </message>
    <message>
        <source>Backed up on or before</source>
        <translation>Gesichert bis</translation>
    </message>
    <message>
        <source>&amp;Hide files removed on/before:</source>
        <translation>&amp;Dateien ausblenden, entfernt bis:</translation>
    </message>
    <message>
        <source>Hide files removed on or before</source>
        <translation>Dateien ausblenden, entfernt bis</translation>
    </message>
</context>
<context>
    <name>RestoreSummary</name>
    <message>
        <source>As it was: %1</source>
        <translation>Stand: %1</translation>
    </message>
    <message>
        <source>As it was: at the last backup</source>
        <translation>Stand: letzte Sicherung</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 Ordner</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 Ordner</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>What: the whole set, %1</source>
        <translation>Was: der ganze Satz, %1</translation>
    </message>
    <message>
        <source>What: at least %1, as not all folders were opened</source>
        <translation>Was: mindestens %1, da nicht alle Ordner geöffnet wurden</translation>
    </message>
    <message>
        <source>What: %1</source>
        <translation>Was: %1</translation>
    </message>
    <message>
        <source>Size: %1</source>
        <translation>Größe: %1</translation>
    </message>
    <message>
        <source>Size: at least %1</source>
        <translation>Größe: mindestens %1</translation>
    </message>
    <message>
        <source>Size: not known before the restore</source>
        <translation>Größe: vor der Wiederherstellung nicht bekannt</translation>
    </message>
    <message>
        <source>Where to: the original location</source>
        <translation>Wohin: an den ursprünglichen Ort</translation>
    </message>
    <message>
        <source>Where to: %1</source>
        <translation>Wohin: %1</translation>
    </message>
    <message>
        <source>Where to: %1 on %2</source>
        <translation>Wohin: %1 auf %2</translation>
    </message>
    <message>
        <source>Existing files: the agent doesn&apos;t report whether it replaces them</source>
        <translation>Vorhandene Dateien: Der Agent meldet nicht, ob er sie ersetzt</translation>
    </message>
    <message>
        <source>Existing files: kept, because the restore creates its own directory</source>
        <translation>Vorhandene Dateien: bleiben, da ein eigenes Verzeichnis entsteht</translation>
    </message>
</context>
<context>
    <name>RestoreSummaryBox</name>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
</context>
<context>
    <name>RetentionSelectPage</name>
    <message>
        <source>Select Retention</source>
        <translation>Aufbewahrung wählen</translation>
    </message>
    <message>
        <source>Provide the data retention configuration for this backup set</source>
        <translation>Legen Sie fest, wie lange die Daten dieses Sicherungssatzes aufbewahrt werden</translation>
    </message>
    <message>
        <source>Time-based Retention</source>
        <translation>Zeitbasierte Aufbewahrung</translation>
    </message>
    <message>
        <source>Keep most recent generations:</source>
        <translation>Neueste Generationen behalten:</translation>
    </message>
    <message>
        <source>Most recent generations</source>
        <translation>Neueste Generationen</translation>
    </message>
    <message>
        <source>Keep one generation per &amp;day for 1 week</source>
        <translation>Eine Generation pro &amp;Tag für 1 Woche behalten</translation>
    </message>
    <message>
        <source>Keep one generation per &amp;week for 1 month</source>
        <translation>Eine Generation pro Wo&amp;che für 1 Monat behalten</translation>
    </message>
    <message>
        <source>Keep one generation per &amp;month for 1 year</source>
        <translation>Eine Generation pro &amp;Monat für 1 Jahr behalten</translation>
    </message>
    <message>
        <source>Deletion of Files</source>
        <translation>Gelöschte Dateien</translation>
    </message>
    <message>
        <source>&amp;If files are removed from source after:</source>
        <translation>Wenn &amp;Dateien an der Quelle gelöscht wurden, nach:</translation>
    </message>
    <message>
        <source>Clean up after</source>
        <translation>Aufräumen nach</translation>
    </message>
    <message>
        <source>Unit of the time</source>
        <translation>Einheit der Zeit</translation>
    </message>
    <message>
        <source>day(s)</source>
        <translation>Tag(en)</translation>
    </message>
    <message>
        <source>week(s)</source>
        <translation>Woche(n)</translation>
    </message>
    <message>
        <source>month(s)</source>
        <translation>Monat(en)</translation>
    </message>
    <message>
        <source>year(s)</source>
        <translation>Jahr(en)</translation>
    </message>
    <message>
        <source>&amp;Keep generations:</source>
        <translation>&amp;Generationen behalten:</translation>
    </message>
    <message>
        <source>Generations to keep</source>
        <translation>Zu behaltende Generationen</translation>
    </message>
    <message>
        <source>Local Storage Retention</source>
        <translation>Aufbewahrung im lokalen Speicher</translation>
    </message>
    <message>
        <source>Keep &amp;all generations for</source>
        <translation>A&amp;lle Generationen behalten bis zu</translation>
    </message>
    <message>
        <source>Days to keep all generations</source>
        <translation>Tage, an denen alle Generationen behalten werden</translation>
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
    <name>ScheduleSelectPage</name>
    <message>
        <source>Select Schedule</source>
        <translation>Zeitplan wählen</translation>
    </message>
    <message>
        <source>Provide the scheduling for this backup set</source>
        <translation>Legen Sie den Zeitplan dieses Sicherungssatzes fest</translation>
    </message>
    <message>
        <source>Scheduling Type</source>
        <translation>Art des Zeitplans</translation>
    </message>
    <message>
        <source>No&amp;t Scheduled (Manual on-demand backups only)</source>
        <translation>O&amp;hne Zeitplan (Sicherung nur von Hand)</translation>
    </message>
    <message>
        <source>&amp;Daily Backup</source>
        <translation>&amp;Tägliche Sicherung</translation>
    </message>
    <message>
        <source>&amp;Monthly Backup</source>
        <translation>&amp;Monatliche Sicherung</translation>
    </message>
    <message>
        <source>Start &amp;&amp; End Time</source>
        <translation>Beginn und Ende</translation>
    </message>
    <message>
        <source>Start &amp;At:</source>
        <translation>&amp;Beginn um:</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>Beginn um</translation>
    </message>
    <message>
        <source>&amp;Stop if not finished by:</source>
        <translation>Sto&amp;ppen, wenn nicht fertig bis:</translation>
    </message>
    <message>
        <source>Stop at</source>
        <translation>Stoppen um</translation>
    </message>
    <message>
        <source>Day of the stop</source>
        <translation>Tag des Stopps</translation>
    </message>
    <message>
        <source>same day</source>
        <translation>am selben Tag</translation>
    </message>
    <message>
        <source>next day</source>
        <translation>am nächsten Tag</translation>
    </message>
    <message>
        <source>in 2 days</source>
        <translation>in 2 Tagen</translation>
    </message>
    <message>
        <source>in 3 days</source>
        <translation>in 3 Tagen</translation>
    </message>
    <message>
        <source>in 4 days</source>
        <translation>in 4 Tagen</translation>
    </message>
    <message>
        <source>in 5 days</source>
        <translation>in 5 Tagen</translation>
    </message>
    <message>
        <source>in 6 days</source>
        <translation>in 6 Tagen</translation>
    </message>
    <message>
        <source>Occurs Every</source>
        <translation>Wiederholen alle</translation>
    </message>
    <message>
        <source>Hours between backups</source>
        <translation>Stunden zwischen den Sicherungen</translation>
    </message>
    <message>
        <source>hour(s)</source>
        <translation>Stunde(n)</translation>
    </message>
    <message>
        <source>&amp;Only if connected to the cloud</source>
        <translation>&amp;Nur bei Verbindung zur Cloud</translation>
    </message>
    <message>
        <source>Scheduling Day</source>
        <translation>Tag der Sicherung</translation>
    </message>
    <message>
        <source>Day of mont&amp;h:</source>
        <translation>Tag &amp;des Monats:</translation>
    </message>
    <message>
        <source>Day of month</source>
        <translation>Tag des Monats</translation>
    </message>
    <message>
        <source>Scheduling Day(s)</source>
        <translation>Tage der Sicherung</translation>
    </message>
    <message>
        <source>Monda&amp;y</source>
        <translation>Monta&amp;g</translation>
    </message>
    <message>
        <source>Tu&amp;esday</source>
        <translation>D&amp;ienstag</translation>
    </message>
    <message>
        <source>&amp;Wednesday</source>
        <translation>Mittwo&amp;ch</translation>
    </message>
    <message>
        <source>T&amp;hursday</source>
        <translation>Donne&amp;rstag</translation>
    </message>
    <message>
        <source>Fr&amp;iday</source>
        <translation>Fr&amp;eitag</translation>
    </message>
    <message>
        <source>Satu&amp;rday</source>
        <translation>&amp;Samstag</translation>
    </message>
    <message>
        <source>S&amp;unday</source>
        <translation>S&amp;onntag</translation>
    </message>
    <message>
        <source>Global Configuration For All Schedules</source>
        <translation>Gilt für alle Zeitpläne</translation>
    </message>
    <message>
        <source>Missed schedule will be triggered in</source>
        <translation>Versäumte Sicherungen werden nachgeholt nach</translation>
    </message>
    <message>
        <source>Hours until a missed schedule is triggered</source>
        <translation>Stunden bis eine versäumte Sicherung nachgeholt wird</translation>
    </message>
</context>
<context>
    <name>SelectDataSourcePage</name>
    <message>
        <source>Data Source and Login Information</source>
        <translation>Datenquelle und Anmeldung</translation>
    </message>
    <message>
        <source>Specify the computer to be backed up and the login credentials used to perform the backup</source>
        <translation>Bestimmen Sie den Computer, der gesichert wird, und die Anmeldedaten für die Sicherung</translation>
    </message>
    <message>
        <source>Data Source</source>
        <translation>Datenquelle</translation>
    </message>
    <message>
        <source>The backup set will backup items &amp;from:</source>
        <translation>Der Sicherungssatz sichert Elemente &amp;von:</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Show the network</source>
        <translation>Netzwerk anzeigen</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Login Credentials</source>
        <translation>Anmeldedaten</translation>
    </message>
    <message>
        <source>Connect &amp;As:</source>
        <translation>V&amp;erbinden als:</translation>
    </message>
    <message>
        <source>Connect as</source>
        <translation>Verbinden als</translation>
    </message>
    <message>
        <source>...</source>
        <translation>…</translation>
    </message>
    <message>
        <source>Change the user</source>
        <translation>Benutzer ändern</translation>
    </message>
    <message>
        <source>SUDO &amp;to:</source>
        <translation>S&amp;UDO zu:</translation>
    </message>
    <message>
        <source>SUDO to</source>
        <translation>SUDO zu</translation>
    </message>
    <message>
        <source>Change the SUDO user</source>
        <translation>SUDO-Benutzer ändern</translation>
    </message>
    <message>
        <source>&amp;SSH Access:</source>
        <translation>&amp;SSH-Zugriff:</translation>
    </message>
    <message>
        <source>SSH access</source>
        <translation>SSH-Zugriff</translation>
    </message>
    <message>
        <source>Change the SSH access</source>
        <translation>SSH-Zugriff ändern</translation>
    </message>
    <message>
        <source>Use &amp;Tarn-Client Account</source>
        <translation>&amp;Tarn-Client-Konto verwenden</translation>
    </message>
    <message>
        <source>Error R1</source>
        <translation>Fehler R1</translation>
    </message>
    <message>
        <source>Init Error</source>
        <translation>Fehler beim Einlesen</translation>
    </message>
    <message>
        <source>Credential check failed</source>
        <translation>Prüfung der Anmeldedaten fehlgeschlagen</translation>
    </message>
    <message>
        <source>Error R2</source>
        <translation>Fehler R2</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Use other credentials</source>
        <translation>Andere Anmeldedaten</translation>
    </message>
    <message>
        <source>Enter the credentials to be used during restore</source>
        <translation>Geben Sie die Anmeldedaten für die Wiederherstellung ein</translation>
    </message>
    <message>
        <source>Restore Destination Computer</source>
        <translation>Zielcomputer der Wiederherstellung</translation>
    </message>
    <message>
        <source>Select the computer where the data will be restored to</source>
        <translation>Wählen Sie den Computer, auf dem die Daten wiederhergestellt werden</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Data will be restored to:</source>
        <translation>Die Daten werden wiederhergestellt auf:</translation>
    </message>
</context>
<context>
    <name>SelectGenerationDlg</name>
    <message>
        <source>Select a file generation to restore</source>
        <translation>Wiederherzustellende Generation wählen</translation>
    </message>
    <message>
        <source>Generations of the file</source>
        <translation>Generationen der Datei</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>A&amp;uswählen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
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
    <name>SetNamePage</name>
    <message>
        <source>Select Backup Set Name</source>
        <translation>Name des Sicherungssatzes</translation>
    </message>
    <message>
        <source>Choose the name for this backup set</source>
        <translation>Wählen Sie einen Namen für diesen Sicherungssatz</translation>
    </message>
    <message>
        <source>Backup Set Name</source>
        <translation>Name des Sicherungssatzes</translation>
    </message>
    <message>
        <source>Backup set name</source>
        <translation>Name des Sicherungssatzes</translation>
    </message>
    <message>
        <source>A backup set with the same name already exists. 
Please choose a different name.</source>
        <translation>Ein Sicherungssatz mit diesem Namen existiert bereits.
Bitte wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>SetOptionsPage</name>
    <message>
        <source>Backup Options</source>
        <translation>Sicherungsoptionen</translation>
    </message>
    <message>
        <source>Choose the options for this backup set</source>
        <translation>Wählen Sie die Optionen dieses Sicherungssatzes</translation>
    </message>
    <message>
        <source>Local Storage Options</source>
        <translation>Lokaler Speicher</translation>
    </message>
    <message>
        <source>&amp;Also save backup data on local storage</source>
        <translation>Sicherungsdaten auch im &amp;lokalen Speicher ablegen</translation>
    </message>
    <message>
        <source>&amp;Use local storage as a transmission cache if Tarn-System connection is lost</source>
        <translation>Lokalen Speicher als &amp;Puffer nutzen, wenn das Tarn-System nicht erreichbar ist</translation>
    </message>
    <message>
        <source>NOTE: THIS FOLDER CANNOT BE SELECTED FOR BACKUP.</source>
        <translation>HINWEIS: DIESER ORDNER KANN NICHT GESICHERT WERDEN.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>Show the folders</source>
        <translation>Ordner anzeigen</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>SimpleGUIMainWindow</name>
    <message>
        <source>No activities in this period.</source>
        <translation>Keine Aktivitäten in diesem Zeitraum.</translation>
    </message>
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
        <translation>Geschützte Generationen:</translation>
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
        <translation>St&amp;oppen</translation>
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
        <source>%1: Backup set &apos;%2&apos; created</source>
        <translation>%1: Sicherungssatz „%2“ angelegt</translation>
    </message>
    <message>
        <source>%1: Restore started for &apos;%2&apos;</source>
        <translation>%1: Wiederherstellung für „%2“ gestartet</translation>
    </message>
    <message>
        <source>%1: Deletion started for &apos;%2&apos;</source>
        <translation>%1: Löschung für „%2“ gestartet</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
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
    <message>
        <source>2FA Settings Error</source>
        <translation>Fehler bei den 2FA-Einstellungen</translation>
    </message>
    <message>
        <source>New Backup Set Error</source>
        <translation>Fehler beim Anlegen des Sicherungssatzes</translation>
    </message>
    <message>
        <source>Editing Backup Set Items Error</source>
        <translation>Fehler beim Bearbeiten der Elemente</translation>
    </message>
    <message>
        <source>Configuration Wizard</source>
        <translation>Konfigurationsassistent</translation>
    </message>
    <message>
        <source>Delete Backup Set?</source>
        <translation>Sicherungssatz löschen?</translation>
    </message>
    <message>
        <source>The selected backup set has no files. Would you like to remove the backup set?</source>
        <translation>Der ausgewählte Sicherungssatz hat keine Dateien. Möchten Sie den Sicherungssatz entfernen?</translation>
    </message>
    <message>
        <source>Protected Items Wizard</source>
        <translation>Assistent für geschützte Elemente</translation>
    </message>
    <message>
        <source>This backup set type cannot be edited by this user interface.</source>
        <translation>Sicherungssätze dieser Art können mit diesem Programm nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>New Backup Set</source>
        <translation>Neuer Sicherungssatz</translation>
    </message>
    <message>
        <source>Retention Rule Wizard</source>
        <translation>Assistent für Aufbewahrungsregeln</translation>
    </message>
    <message>
        <source>Schedule Wizard</source>
        <translation>Zeitplan-Assistent</translation>
    </message>
    <message>
        <source>LDAP User Validation Error</source>
        <translation>Fehler beim Prüfen des LDAP-Benutzers</translation>
    </message>
    <message>
        <source>Delete from backup set</source>
        <translation>Aus Sicherungssatz löschen</translation>
    </message>
    <message>
        <source>Restore Data</source>
        <translation>Daten wiederherstellen</translation>
    </message>
    <message>
        <source>No data backed up</source>
        <translation>Keine gesicherten Daten</translation>
    </message>
    <message>
        <source>The selected backup set has no backed up data.</source>
        <translation>Der gewählte Sicherungssatz hat keine gesicherten Daten.</translation>
    </message>
    <message>
        <source>The file is no longer stored.</source>
        <translation>Die Datei ist nicht mehr gespeichert.</translation>
    </message>
    <message>
        <source>The backup set no longer exists.</source>
        <translation>Den Sicherungssatz gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>An activity is running on the backup set.</source>
        <translation>Auf dem Sicherungssatz läuft eine Aktivität.</translation>
    </message>
    <message>
        <source>The backup set isn't in sync. Synchronize it, then try again.</source>
        <translation>Der Sicherungssatz ist nicht synchron. Synchronisieren Sie ihn, und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Ansich&amp;t</translation>
    </message>
    <message>
        <source>Backup &amp;Health</source>
        <translation>&amp;Zustand der Sicherungen</translation>
    </message>
    <message>
        <source>&amp;Find File</source>
        <translation>&amp;Datei suchen</translation>
    </message>
</context>
<context>
    <name>StoredItemsPage</name>
    <message>
        <source>No files of this folder match the file filter.</source>
        <translation>Keine Dateien dieses Ordners passen zum Dateifilter.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>TFACodeDlg</name>
    <message>
        <source>Two-factor Authentication Validation</source>
        <translation>Zwei-Faktor-Authentifizierung</translation>
    </message>
    <message>
        <source>An email with an authentication code has been sent to the following email address. Enter the authentication code below, and then click Validate.</source>
        <translation>Eine E-Mail mit einem Authentifizierungscode wurde an die folgende Adresse gesendet. Geben Sie den Code unten ein und klicken Sie dann auf „Prüfen“.</translation>
    </message>
    <message>
        <source>Email address:</source>
        <translation>E-Mail-Adresse:</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Authentication Code:</source>
        <translation>Authentifizierungscode:</translation>
    </message>
    <message>
        <source>Authentication code</source>
        <translation>Authentifizierungscode</translation>
    </message>
    <message>
        <source>&amp;Resend Code</source>
        <translation>Code &amp;erneut senden</translation>
    </message>
    <message>
        <source>&amp;Validate</source>
        <translation>&amp;Prüfen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>TFAUserDlg</name>
    <message>
        <source>Edit User Email</source>
        <translation>E-Mail-Adresse bearbeiten</translation>
    </message>
    <message>
        <source>User and Email</source>
        <translation>Benutzer und E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Username is required.</source>
        <translation>Der Benutzername wird benötigt.</translation>
    </message>
    <message>
        <source>Email is required.</source>
        <translation>Die E-Mail-Adresse wird benötigt.</translation>
    </message>
    <message>
        <source>Not a valid Email address.</source>
        <translation>Dies ist keine gültige E-Mail-Adresse.</translation>
    </message>
</context>
<context>
    <name>TFAUsersModel</name>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
</context>
<context>
    <name>TFAUsersViewer</name>
    <message>
        <source>Users imported: %1. Lines skipped: %2.</source>
        <translation>Benutzer importiert: %1. Zeilen übersprungen: %2.</translation>
    </message>
    <message>
        <source>User Email Settimgs</source>
        <translation>E-Mail-Adressen der Benutzer</translation>
    </message>
    <message>
        <source>Users and their email addresses</source>
        <translation>Benutzer und ihre E-Mail-Adressen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Import from csv file</source>
        <translation>Aus CSV-Datei importieren</translation>
    </message>
    <message>
        <source>&amp;Forward to Tarn-System</source>
        <translation>An &amp;Tarn-System weiterleiten</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Please choose a .CSV file</source>
        <translation>CSV-Datei wählen</translation>
    </message>
    <message>
        <source>CSV Files (*.csv)</source>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>Configuration Error</source>
        <translation>Konfigurationsfehler</translation>
    </message>
    <message>
        <source>Forward to Tarn-System</source>
        <translation>An Tarn-System weiterleiten</translation>
    </message>
    <message>
        <source>User email list is successfully sent to Tarn-System.</source>
        <translation>Die Liste der E-Mail-Adressen wurde an das Tarn-System gesendet.</translation>
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
    <name>WaitingPanel</name>
    <message>
        <source>Stops waiting and disconnects (Esc)</source>
        <translation>Beendet das Warten und trennt die Verbindung (Esc)</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>The agent hasn&apos;t answered for %1 s.</source>
        <translation>Der Agent antwortet seit %1 s nicht.</translation>
    </message>
    <message>
        <source>The agent has answered slowly for %1 s.</source>
        <translation>Der Agent antwortet seit %1 s nur langsam.</translation>
    </message>
    <message>
        <source>The logon service hasn&apos;t answered for %1 s.</source>
        <translation>Der Anmeldedienst antwortet seit %1 s nicht.</translation>
    </message>
</context>
<context>
    <name>WeekPicture</name>
    <message>
        <source>%1
%2 to %3</source>
        <translation>%1
%2 bis %3</translation>
    </message>
    <message>
        <source>Runs in these 7 days: %1. At the same time as another: %2. The list has each of them.</source>
        <translation>Läufe in diesen 7 Tagen: %1. Gleichzeitig mit einem anderen: %2. Die Liste nennt jeden von ihnen.</translation>
    </message>
</context>
<context>
    <name>WizardButtonText</name>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertigstellen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
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
    <name>app::CallGate</name>
    <message>
        <source>Disconnected, as the agent hadn&apos;t answered for %1 s.</source>
        <translation>Getrennt, da der Agent %1 s lang nicht geantwortet hat.</translation>
    </message>
    <message>
        <source>Disconnected, as the agent had answered slowly for %1 s.</source>
        <translation>Getrennt, da der Agent %1 s lang nur langsam geantwortet hat.</translation>
    </message>
    <message>
        <source>Disconnected, as the logon service hadn&apos;t answered for %1 s.</source>
        <translation>Getrennt, da der Anmeldedienst %1 s lang nicht geantwortet hat.</translation>
    </message>
</context>
<context>
    <name>app::ConnectionField</name>
    <message>
        <source>Click to connect.</source>
        <translation>Zum Verbinden klicken.</translation>
    </message>
</context>
<context>
    <name>app::StatusLink</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Shows the events of this activity</source>
        <translation>Zeigt die Ereignisse dieser Aktivität</translation>
    </message>
    <message>
        <source>Events of this activity</source>
        <translation>Ereignisse dieser Aktivität</translation>
    </message>
</context>
<context>
    <name>app::SessionEndedNotice</name>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
</context>
<context>
    <name>app::HealthField</name>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Backup health: %1</source>
        <translation>Zustand der Sicherungen: %1</translation>
    </message>
    <message>
        <source>Click to read the schedules, and to see whether a backup is overdue</source>
        <translation>Klicken, um die Zeitpläne zu lesen und zu sehen, ob eine Sicherung überfällig ist</translation>
    </message>
    <message>
        <source>Click to see the health of each backup set</source>
        <translation>Klicken, um den Zustand jedes Sicherungssatzes zu sehen</translation>
    </message>
</context>
<context>
    <name>app::Notifications</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <source>The agent did not return the requested object.</source>
        <translation>Der Agent hat das angeforderte Objekt nicht geliefert.</translation>
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
