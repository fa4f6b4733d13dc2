; SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
; SPDX-License-Identifier: Apache-2.0
!insertmacro MUI_LANGUAGE German
!define LANGUAGE_de ${LANG_GERMAN}

LangString DesktopIcon ${LANG_GERMAN} "Symbol auf dem Desktop"
LangString StartAtLogOn ${LANG_GERMAN} "Start bei der Anmeldung"
LangString AboutProgram ${LANG_GERMAN} "Das Programm, sein Handbuch und sein Eintrag im Startmenü."
LangString AboutDesktopIcon ${LANG_GERMAN} "Eine Verknüpfung auf dem Desktop."
LangString AboutStartAtLogOn ${LANG_GERMAN} "Startet das Programm im Infobereich, wenn Sie sich bei Windows anmelden."
LangString IsRunning ${LANG_GERMAN} "${NAME} läuft und muss beendet werden. Jetzt beenden?"
LangString StillRuns ${LANG_GERMAN} "${NAME} läuft noch. Beenden Sie es über sein Symbol im Infobereich und versuchen Sie es erneut."
LangString TooOld ${LANG_GERMAN} "${NAME} benötigt Windows 10, Version 1903, oder neuer."
LangString NeedsRights ${LANG_GERMAN} "Nur ein Administrator kann ${NAME} für alle Benutzer installieren oder entfernen."
LangString InUse ${LANG_GERMAN} "$File wird gerade verwendet. Schließen Sie das Programm, das die Datei verwendet, und versuchen Sie es erneut."
LangString NotRemoved ${LANG_GERMAN} "$File konnte nicht gelöscht werden. Prüfen Sie, ob Sie das Recht dazu haben, und versuchen Sie es erneut."
LangString IsNewer ${LANG_GERMAN} "Eine neuere Version von ${NAME} ist installiert. Um sie durch Version ${VERSION} zu ersetzen, deinstallieren Sie sie zuerst."
