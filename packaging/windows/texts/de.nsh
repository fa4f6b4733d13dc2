; SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
; SPDX-License-Identifier: Apache-2.0
!insertmacro MUI_LANGUAGE German
!define LANGUAGE_de ${LANG_GERMAN}

LangString Welcome ${LANG_GERMAN} "Dieser Assistent installiert ${NAME}, das Programm, mit dem Sie die Sicherungen dieses Computers ausführen.$\r$\n$\r$\nWenn eine ältere Version läuft, werden Sie gefragt, bevor das Programm beendet wird.$\r$\n$\r$\n$_CLICK"
LangString DesktopIcon ${LANG_GERMAN} "Symbol auf dem Desktop"
LangString StartAtLogOn ${LANG_GERMAN} "Start bei der Anmeldung"
LangString AboutProgram ${LANG_GERMAN} "Das Programm, sein Handbuch und sein Eintrag im Startmenü."
LangString AboutDesktopIcon ${LANG_GERMAN} "Eine Verknüpfung auf dem Desktop."
LangString AboutStartAtLogOn ${LANG_GERMAN} "Startet das Programm im Infobereich, wenn Sie sich bei Windows anmelden."
LangString IsRunning ${LANG_GERMAN} "${NAME} läuft und muss beendet werden. Jetzt beenden?"
LangString StillRuns ${LANG_GERMAN} "${NAME} läuft noch. Beenden Sie es über sein Symbol im Infobereich und versuchen Sie es erneut."
LangString TooOld ${LANG_GERMAN} "${NAME} benötigt Windows 10, Version 1903, oder neuer."
LangString NeedsRights ${LANG_GERMAN} "Nur ein Administrator kann ${NAME} für alle Benutzer installieren oder entfernen."
LangString InUse ${LANG_GERMAN} "Eine Datei wird gerade verwendet:$\r$\n$\r$\n$File$\r$\n$\r$\nSchließen Sie das Programm, das sie verwendet, und versuchen Sie es erneut."
LangString NotRemoved ${LANG_GERMAN} "Eine Datei konnte nicht gelöscht werden:$\r$\n$\r$\n$File$\r$\n$\r$\nPrüfen Sie, ob Sie das Recht dazu haben, und versuchen Sie es erneut."
LangString IsNewer ${LANG_GERMAN} "Eine neuere Version von ${NAME} ist installiert. Um sie durch Version ${VERSION} zu ersetzen, deinstallieren Sie sie zuerst."
