; SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
; SPDX-License-Identifier: Apache-2.0
;
; The installer. tools/windows/installer gives VERSION, PROGRAM_FOLDER, FILE_LIST, ICON, LICENSE, SIGN
; and OUTPUT.

Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
ManifestDPIAware true

!define NAME "Tarn-Mobile User"
!define PROGRAM "tarn-mobile-user.exe"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarn-Mobile User"
!define EVENT_SOURCE "SYSTEM\CurrentControlSet\Services\EventLog\Application\HessianClientAPI"

; For all users if the user has the rights, otherwise for this user only; a page asks if both are
; possible.
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "${NAME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME InstallLocation

!include MUI2.nsh
!include MultiUser.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include Sections.nsh
!include WinMessages.nsh
; Defines the macros InstallFiles and RemoveFiles.
!include "${FILE_LIST}"

Name "${NAME} ${VERSION}"
OutFile "${OUTPUT}"
!uninstfinalize '"${SIGN}" "%1"'
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "${NAME} Setup"
VIAddVersionKey CompanyName "The Tarn-Mobile User authors"
VIAddVersionKey LegalCopyright "Copyright 2026 The Tarn-Mobile User authors"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION StartProgram

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${LICENSE}"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE German

LangString DesktopIcon ${LANG_ENGLISH} "Desktop icon"
LangString DesktopIcon ${LANG_GERMAN} "Symbol auf dem Desktop"
LangString StartAtLogOn ${LANG_ENGLISH} "Start at log-on"
LangString StartAtLogOn ${LANG_GERMAN} "Start bei der Anmeldung"
LangString AboutProgram ${LANG_ENGLISH} "The program, its user guide and its entry in the Start menu."
LangString AboutProgram ${LANG_GERMAN} "Das Programm, sein Handbuch und sein Eintrag im Startmenü."
LangString AboutDesktopIcon ${LANG_ENGLISH} "A shortcut on the desktop."
LangString AboutDesktopIcon ${LANG_GERMAN} "Eine Verknüpfung auf dem Desktop."
LangString AboutStartAtLogOn ${LANG_ENGLISH} "Starts the program in the notification area when you log on to Windows."
LangString AboutStartAtLogOn ${LANG_GERMAN} "Startet das Programm im Infobereich, wenn Sie sich bei Windows anmelden."
LangString IsRunning ${LANG_ENGLISH} "${NAME} is running and has to be closed. Close it now?"
LangString IsRunning ${LANG_GERMAN} "${NAME} läuft und muss beendet werden. Jetzt beenden?"
LangString StillRuns ${LANG_ENGLISH} "${NAME} is still running. Quit it from its icon in the notification area, then try again."
LangString StillRuns ${LANG_GERMAN} "${NAME} läuft noch. Beenden Sie es über sein Symbol im Infobereich und versuchen Sie es erneut."
LangString OnlyFrom10 ${LANG_ENGLISH} "${NAME} needs Windows 10 or later."
LangString OnlyFrom10 ${LANG_GERMAN} "${NAME} benötigt Windows 10 oder neuer."
; The options that start the program in the installer's language.
LangString ProgramOptions ${LANG_ENGLISH} "--lang en"
LangString ProgramOptions ${LANG_GERMAN} "--lang de"

; Asks every running program from this folder to end, as at the end of a session, and waits for it.
; Its process may outlive its windows, and keeps the files in use until its end.
!macro CloseFunctions un
; Whether process $3 runs the program from this folder: $4 is 1 or 0.
Function ${un}IsOurs
    Push $5
    Push $6
    StrCpy $4 0
    ; PROCESS_QUERY_LIMITED_INFORMATION
    System::Call 'kernel32::OpenProcess(i 0x1000, i 0, i r3) p .r5'
    ${If} $5 <> 0
        System::Call 'kernel32::QueryFullProcessImageNameW(p r5, i 0, w .r6, *i ${NSIS_MAX_STRLEN})'
        System::Call 'kernel32::CloseHandle(p r5)'
        ${If} $6 == "$INSTDIR\${PROGRAM}"
            StrCpy $4 1
        ${EndIf}
    ${EndIf}
    Pop $6
    Pop $5
FunctionEnd

; $R0: the number of processes.
Function ${un}CountRunning
    StrCpy $R0 0
    ; TH32CS_SNAPPROCESS
    System::Call 'kernel32::CreateToolhelp32Snapshot(i 2, i 0) p .r0'
    System::Alloc 568 ; a PROCESSENTRY32W
    Pop $1
    System::Call '*$1(i 568)'
    System::Call 'kernel32::Process32FirstW(p r0, p r1) i .r2'
    ${DoWhile} $2 <> 0
        System::Call '*$1(i, i, i .r3)'
        Call ${un}IsOurs
        IntOp $R0 $R0 + $4
        System::Call 'kernel32::Process32NextW(p r0, p r1) i .r2'
    ${Loop}
    System::Free $1
    System::Call 'kernel32::CloseHandle(p r0)'
FunctionEnd

Function ${un}AskToEnd
    StrCpy $0 0
    ${Do}
        System::Call 'user32::FindWindowExW(p 0, p r0, p 0, p 0) p .r0'
        ${If} $0 = 0
            ${Break}
        ${EndIf}
        System::Call 'user32::GetWindowThreadProcessId(p r0, *i .r3)'
        Call ${un}IsOurs
        ${If} $4 = 1
            ; The last arguments are ENDSESSION_CLOSEAPP, SMTO_ABORTIFHUNG and the limit in milliseconds.
            System::Call 'user32::SendMessageTimeoutW(p r0, i ${WM_QUERYENDSESSION}, p 0, p 1, i 2, i 5000, *p .r5)'
            ${If} $5 <> 0
                System::Call 'user32::PostMessageW(p r0, i ${WM_ENDSESSION}, p 1, p 1)'
            ${EndIf}
        ${EndIf}
    ${Loop}
FunctionEnd

Function ${un}CloseProgram
    Call ${un}CountRunning
    ${If} $R0 = 0
        Return
    ${EndIf}
    MessageBox MB_OKCANCEL|MB_ICONEXCLAMATION $(IsRunning) /SD IDOK IDOK ask
    Abort
    ask:
    Call ${un}AskToEnd
    ${For} $R8 1 60
        Sleep 250
        Call ${un}CountRunning
        ${If} $R0 = 0
            Return
        ${EndIf}
    ${Next}
    MessageBox MB_RETRYCANCEL|MB_ICONSTOP $(StillRuns) /SD IDCANCEL IDRETRY ask
    SetErrorLevel 2
    Quit
FunctionEnd
!macroend
!insertmacro CloseFunctions ""
!insertmacro CloseFunctions "un."

; The shortcut starts in the program's folder, where its translations and branding are.
!macro Shortcut path options
    CreateShortcut "${path}" "$INSTDIR\${PROGRAM}" "${options}" "$INSTDIR\${PROGRAM}" 0
!macroend

Section "!${NAME}" WithProgram
    SectionIn RO
    Call CloseProgram
    SetOutPath "$INSTDIR"
    ; Otherwise files that only the older version has would remain.
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ExecWait '"$INSTDIR\uninstall.exe" /S /Upgrade /$MultiUser.InstallMode _?=$INSTDIR'
    ${EndIf}
    !insertmacro InstallFiles
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    !insertmacro Shortcut "$SMPROGRAMS\${NAME}.lnk" "$(ProgramOptions)"

    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName "${NAME}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\${PROGRAM}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "The Tarn-Mobile User authors"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize $0

    ; Only an administrator can register an event log source.
    ${If} $MultiUser.InstallMode == AllUsers
        WriteRegExpandStr HKLM "${EVENT_SOURCE}" EventMessageFile "$INSTDIR\${PROGRAM}"
        WriteRegDWORD HKLM "${EVENT_SOURCE}" TypesSupported 1
    ${EndIf}
SectionEnd

Section /o $(DesktopIcon) WithDesktopIcon
    !insertmacro Shortcut "$DESKTOP\${NAME}.lnk" "$(ProgramOptions)"
SectionEnd

Section /o $(StartAtLogOn) WithStartAtLogOn
    !insertmacro Shortcut "$SMSTARTUP\${NAME}.lnk" "$(ProgramOptions) --tray"
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${WithProgram} $(AboutProgram)
    !insertmacro MUI_DESCRIPTION_TEXT ${WithDesktopIcon} $(AboutDesktopIcon)
    !insertmacro MUI_DESCRIPTION_TEXT ${WithStartAtLogOn} $(AboutStartAtLogOn)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Selects a section if the command line requests it, or if an earlier installation contains its
; result.
!macro Choose section option made
    ClearErrors
    ${GetOptions} $0 "${option}" $1
    ${IfNot} ${Errors}
    ${OrIf} ${FileExists} "${made}"
        !insertmacro SelectSection ${section}
    ${EndIf}
!macroend

Function .onInit
    ${IfNot} ${AtLeastWin10}
        MessageBox MB_OK|MB_ICONSTOP $(OnlyFrom10) /SD IDOK
        SetErrorLevel 3
        Quit
    ${EndIf}
    SetRegView 64
    !insertmacro MULTIUSER_INIT
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/LANG=" $1
    ${IfNot} ${Errors}
        ${If} $1 == de
            StrCpy $LANGUAGE ${LANG_GERMAN}
        ${Else}
            StrCpy $LANGUAGE ${LANG_ENGLISH}
        ${EndIf}
    ${EndIf}
    !insertmacro Choose ${WithDesktopIcon} "/DESKTOPICON" "$DESKTOP\${NAME}.lnk"
    !insertmacro Choose ${WithStartAtLogOn} "/STARTATLOGON" "$SMSTARTUP\${NAME}.lnk"
FunctionEnd

Function StartProgram
    SetOutPath "$INSTDIR"
    ; Via the desktop shell, so that it runs with the user's rights even if the installer has more.
    Exec '"$WINDIR\explorer.exe" "$SMPROGRAMS\${NAME}.lnk"'
FunctionEnd

Function un.onInit
    SetRegView 64
    !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section Uninstall
    Call un.CloseProgram
    !insertmacro RemoveFiles
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/Upgrade" $1
    ; An upgrade keeps the shortcuts, wherever the user has put them.
    ${If} ${Errors}
        Delete "$SMPROGRAMS\${NAME}.lnk"
        Delete "$DESKTOP\${NAME}.lnk"
        Delete "$SMSTARTUP\${NAME}.lnk"
        DeleteRegKey SHCTX "${UNINSTALL_KEY}"
        ${If} $MultiUser.InstallMode == AllUsers
            DeleteRegKey HKLM "${EVENT_SOURCE}"
        ${EndIf}
    ${EndIf}
SectionEnd
