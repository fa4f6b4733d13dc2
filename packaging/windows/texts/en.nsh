; SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
; SPDX-License-Identifier: Apache-2.0
!insertmacro MUI_LANGUAGE English
!define LANGUAGE_en ${LANG_ENGLISH}

LangString Welcome ${LANG_ENGLISH} "This wizard installs ${NAME}, the program with which you run the backups of this computer.$\r$\n$\r$\nIf an earlier version is running, the wizard asks you before it closes the program.$\r$\n$\r$\n$_CLICK"
LangString DesktopIcon ${LANG_ENGLISH} "Desktop icon"
LangString StartAtLogOn ${LANG_ENGLISH} "Start at log-on"
LangString AboutProgram ${LANG_ENGLISH} "The program, its user guide and its entry in the Start menu."
LangString AboutDesktopIcon ${LANG_ENGLISH} "A shortcut on the desktop."
LangString AboutStartAtLogOn ${LANG_ENGLISH} "Starts the program in the notification area when you log on to Windows."
LangString IsRunning ${LANG_ENGLISH} "${NAME} is running and must be closed. Close it now?"
LangString StillRuns ${LANG_ENGLISH} "${NAME} is still running. Quit it from its icon in the notification area, then try again."
LangString TooOld ${LANG_ENGLISH} "${NAME} needs Windows 10, version 1903, or later."
LangString NeedsRights ${LANG_ENGLISH} "Only an administrator can install or remove ${NAME} for all users."
LangString InUse ${LANG_ENGLISH} "A file is in use:$\r$\n$\r$\n$File$\r$\n$\r$\nClose the program that uses it, then try again."
LangString NotRemoved ${LANG_ENGLISH} "A file could not be removed:$\r$\n$\r$\n$File$\r$\n$\r$\nMake sure that you have the right to delete it, then try again."
LangString IsNewer ${LANG_ENGLISH} "A newer version of ${NAME} is installed. To replace it with version ${VERSION}, uninstall it first."
