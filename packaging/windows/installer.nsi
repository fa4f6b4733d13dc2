; SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
; SPDX-License-Identifier: Apache-2.0
;
; The installer. tools/windows/pack defines VERSION, LISTS, ICON, LICENSE, PICTURE, SIGN and OUTPUT.

Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
ManifestDPIAware true
; A file that can't be written aborts a silent installation, too.
AllowSkipFiles off

!define NAME "Tarn-Mobile User"
!define PROGRAM "tarn-mobile-user.exe"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarn-Mobile User"
; In the version information of our uninstaller: American English, Unicode.
!define PRODUCT_NAME "\StringFileInfo\040904B0\ProductName"
!define EVENT_SOURCE "SYSTEM\CurrentControlSet\Services\EventLog\Application\HessianClientAPI"

; For all users if the user has administrator rights, otherwise for this user only; a page asks if
; both are possible.
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_USE_PROGRAMFILES64
; What the uninstaller removes depends on its folder only.
!define MULTIUSER_NOUNINSTALL
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR "${NAME}"
!define MULTIUSER_INSTALLMODE_FUNCTION ModeChosen
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME InstallLocation

!include MUI2.nsh
!include MultiUser.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include Sections.nsh
!include WordFunc.nsh
!include WinMessages.nsh
!include WinVer.nsh
; Defines the macros InstallFiles, ForEachFile, RemoveFolders and ForEachLanguage.
!include "${LISTS}"

; The folder from the command line; otherwise empty.
Var GivenFolder
; Where the program is installed, as the registry says; otherwise empty.
Var OldFolder
; 1 if that folder contains our uninstaller, else 0: then nothing there may be removed.
Var OldIsOurs
; 1 if the uninstaller's folder is that of the program for all users, or for this user; else 0.
Var ForAll
Var ForUser
; The language of the program, as in "--lang de".
Var Code

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
!define MUI_WELCOMEPAGE_TEXT $(Welcome)
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
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

; Each file adds a language with its texts, and defines LANGUAGE_CODE.
!macro AddLanguage code
    !include "texts/${code}.nsh"
!macroend
!insertmacro ForEachLanguage AddLanguage

!include files.nsh
!include close_program.nsh

; The shortcut starts in the program's folder, where its translations and branding are.
!macro Shortcut path options
    SetOutPath "$INSTDIR"
    CreateShortcut "${path}" "$INSTDIR\${PROGRAM}" "--lang $Code${options}" "$INSTDIR\${PROGRAM}" 0
!macroend

; The registry may be out of date, and the folder now that of another program. Even an incomplete
; installation contains the uninstaller, which has this installer's version information.
Function LookIfOldIsOurs
    StrCpy $OldIsOurs 0
    ${If} $OldFolder == ""
        Return
    ${EndIf}
    StrCpy $0 "$OldFolder\uninstall.exe"
    System::Call 'version::GetFileVersionInfoSizeW(w r0, p 0) i .r1'
    ${If} $1 = 0
        Return
    ${EndIf}
    System::Alloc $1
    Pop $2
    System::Call 'version::GetFileVersionInfoW(w r0, i 0, i r1, p r2) i .r3'
    ${If} $3 <> 0
        System::Call 'version::VerQueryValueW(p r2, w "${PRODUCT_NAME}", *p .r4, *i .r5) i .r3'
    ${EndIf}
    ${If} $3 <> 0
        System::Call '*$4(&w$5 .r0)'
        ${If} $0 == "${NAME}"
            StrCpy $OldIsOurs 1
        ${EndIf}
    ${EndIf}
    System::Free $2
FunctionEnd

; An older version doesn't know which files it would have to remove.
Function RefuseOlder
    ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" DisplayVersion
    ${VersionCompare} "$0" "${VERSION}" $1
    ${If} $1 = 1
    ${AndIf} $OldIsOurs = 1
        MessageBox MB_OK|MB_ICONSTOP $(IsNewer) /SD IDOK
        SetErrorLevel 6
        Quit
    ${EndIf}
FunctionEnd

; If the chosen folder contains files that aren't ours, the program gets a subfolder. Branding, style
; and translations may be there before the program, and stay when it is removed.
Function UseOwnFolder
    ${GetFileName} "$INSTDIR" $0
    ${If} $0 == "${NAME}"
    ${OrIf} ${FileExists} "$INSTDIR\${PROGRAM}"
        Return
    ${EndIf}
    FindFirst $0 $1 "$INSTDIR\*"
    ${DoWhile} $1 != ""
        StrCpy $2 $1 8
        ${If} $1 != "."
        ${AndIf} $1 != ".."
        ${AndIf} $1 != "resources.zip"
        ${AndIf} $1 != "tarnmobile.css"
        ${AndIf} $2 != "sg_i18n_"
            StrCpy $INSTDIR "$INSTDIR\${NAME}"
            ${Break}
        ${EndIf}
        FindNext $0 $1
    ${Loop}
    FindClose $0
FunctionEnd

Function FreeOldAndNew
    StrCpy $Folder $INSTDIR
    Call FreeFiles
    ${If} $OldIsOurs = 1
        StrCpy $Folder $OldFolder
        Call FreeFiles
    ${EndIf}
FunctionEnd

; Removes the installed version; otherwise, files that only that version has would remain. Shortcuts
; are kept, wherever the user has put them. Doesn't run the old uninstaller: this process may have
; more rights than those who can write to that folder.
Function RemoveOld
    ${If} $OldIsOurs = 0
        Return
    ${EndIf}
    StrCpy $Folder $OldFolder
    Call RemoveFiles
    Delete "$OldFolder\uninstall.exe"
    RMDir "$OldFolder"
FunctionEnd

Function AddUninstaller
    SetOutPath "$INSTDIR"
    again:
    ClearErrors
    WriteUninstaller "$INSTDIR\uninstall.exe"
    ${If} ${Errors}
        StrCpy $0 "$INSTDIR\uninstall.exe"
        MessageBox MB_RETRYCANCEL|MB_ICONSTOP $(^FileError_NoIgnore) /SD IDCANCEL IDRETRY again
        Quit
    ${EndIf}
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName "${NAME}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\${PROGRAM}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "The Tarn-Mobile User authors"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" Language "$Code"
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
FunctionEnd

; Only an administrator can register an event log source. One that another product has registered
; under the same name stays as it is.
Function AddEventSource
    ReadRegStr $0 HKLM "${EVENT_SOURCE}" EventMessageFile
    ${If} $0 == ""
    ${OrIf} $0 == "$INSTDIR\${PROGRAM}"
    ${OrIf} $0 == "$OldFolder\${PROGRAM}"
        WriteRegExpandStr HKLM "${EVENT_SOURCE}" EventMessageFile "$INSTDIR\${PROGRAM}"
        WriteRegDWORD HKLM "${EVENT_SOURCE}" TypesSupported 1
    ${EndIf}
FunctionEnd

Section "!${NAME}" WithProgram
    SectionIn RO
    Call RefuseOlder
    Call UseOwnFolder
    Call FreeOldAndNew
    SetErrorLevel 5
    Call RemoveOld
    ; First, so that an incomplete installation can be removed.
    Call AddUninstaller
    !insertmacro InstallFiles
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize $0
    !insertmacro Shortcut "$SMPROGRAMS\${NAME}.lnk" ""
    ${If} $MultiUser.InstallMode == AllUsers
        Call AddEventSource
    ${EndIf}
    SetErrorLevel 0
SectionEnd

Section /o $(DesktopIcon) WithDesktopIcon
    !insertmacro Shortcut "$DESKTOP\${NAME}.lnk" ""
SectionEnd

Section /o $(StartAtLogOn) WithStartAtLogOn
    !insertmacro Shortcut "$SMSTARTUP\${NAME}.lnk" " --tray"
SectionEnd

; Removes the shortcuts of an earlier installation that the user has deselected.
Section -Unselected
    ${IfNot} ${SectionIsSelected} ${WithDesktopIcon}
        Delete "$DESKTOP\${NAME}.lnk"
    ${EndIf}
    ${IfNot} ${SectionIsSelected} ${WithStartAtLogOn}
        Delete "$SMSTARTUP\${NAME}.lnk"
    ${EndIf}
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
    ${Else}
        !insertmacro UnselectSection ${section}
    ${EndIf}
!macroend

; Selects the language $1 if it exists.
!macro UseLanguage code
    ${If} $1 == ${code}
        StrCpy $LANGUAGE ${LANGUAGE_${code}}
    ${EndIf}
!macroend

!macro UseCode code
    ${If} $LANGUAGE = ${LANGUAGE_${code}}
        StrCpy $Code ${code}
    ${EndIf}
!macroend

; Selects the language: of the command line, of the earlier installation, or of Windows.
Function ChooseCode
    !insertmacro ForEachLanguage UseCode
    ClearErrors
    ${GetOptions} $0 "/LANG=" $1
    ${If} ${Errors}
        ReadRegStr $1 SHCTX "${UNINSTALL_KEY}" Language
        ${If} $1 != ""
            StrCpy $Code $1
        ${EndIf}
    ${EndIf}
FunctionEnd

; Called at the start, and after the user has chosen who to install for.
Function ModeChosen
    ReadRegStr $OldFolder SHCTX "${UNINSTALL_KEY}" InstallLocation
    Call LookIfOldIsOurs
    ${If} $GivenFolder != ""
        StrCpy $INSTDIR $GivenFolder
    ${EndIf}
    ${GetParameters} $0
    Call ChooseCode
    !insertmacro Choose ${WithDesktopIcon} "/DESKTOPICON" "$DESKTOP\${NAME}.lnk"
    !insertmacro Choose ${WithStartAtLogOn} "/STARTATLOGON" "$SMSTARTUP\${NAME}.lnk"
FunctionEnd

!macro RefuseWithoutRights
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != Admin
    ${AndIf} $0 != Power
        MessageBox MB_OK|MB_ICONSTOP $(NeedsRights) /SD IDOK
        SetErrorLevel 4
        Quit
    ${EndIf}
!macroend

Function .onInit
    ${GetParameters} $0
    ${GetOptions} $0 "/LANG=" $1
    !insertmacro ForEachLanguage UseLanguage
    ; The first version in which the program's code page is UTF-8, as its manifest requires.
    ${IfNot} ${AtLeastWin10}
    ${OrIfNot} ${AtLeastBuild} 18362
        MessageBox MB_OK|MB_ICONSTOP $(TooOld) /SD IDOK
        SetErrorLevel 3
        Quit
    ${EndIf}
    SetRegView 64
    ; MultiUser.nsh would show a message even in a silent installation.
    ${GetParameters} $1
    ${StrStr} $2 $1 "/AllUsers"
    ${If} $2 != ""
        !insertmacro RefuseWithoutRights
    ${EndIf}
    StrCpy $GivenFolder $INSTDIR
    !insertmacro MULTIUSER_INIT
FunctionEnd

Function StartProgram
    SetOutPath "$INSTDIR"
    ; Via the desktop shell, so that it runs with the user's rights even if the installer has more.
    Exec '"$WINDIR\explorer.exe" "$SMPROGRAMS\${NAME}.lnk"'
FunctionEnd

; Sets $0 to 1 if $6 is the folder of this uninstaller, else to 0.
Function un.IsThisFolder
    StrCpy $0 0
    ${If} $6 == ""
        Return
    ${EndIf}
    StrCpy $6 "$6\uninstall.exe"
    Call un.Identify
    StrCpy $1 $6
    StrCpy $6 "$INSTDIR\uninstall.exe"
    Call un.Identify
    ${If} $6 != ""
    ${AndIf} $6 == $1
        StrCpy $0 1
    ${EndIf}
FunctionEnd

; The program may have been installed again elsewhere, or this folder may be a copy.
Function un.onInit
    SetRegView 64
    ReadRegStr $6 HKLM "${UNINSTALL_KEY}" InstallLocation
    Call un.IsThisFolder
    StrCpy $ForAll $0
    ReadRegStr $6 HKCU "${UNINSTALL_KEY}" InstallLocation
    Call un.IsThisFolder
    StrCpy $ForUser $0
    ${If} $ForAll = 1
        !insertmacro RefuseWithoutRights
    ${EndIf}
FunctionEnd

; This is a copy, unless "_?=" has prevented it. The process that started the copy may not have ended
; yet, and hold its file.
Function un.RemoveItself
    StrCpy $6 $EXEDIR
    Call un.IsThisFolder
    ${If} $0 = 1
        Return
    ${EndIf}
    StrCpy $File "$INSTDIR\uninstall.exe"
    ${For} $R8 1 40
        Delete "$File"
        ${IfNot} ${FileExists} "$File"
            Return
        ${EndIf}
        Sleep 250
    ${Next}
    !insertmacro EndIncomplete
FunctionEnd

!macro Unregister hive context
    SetShellVarContext ${context}
    Delete "$SMPROGRAMS\${NAME}.lnk"
    Delete "$DESKTOP\${NAME}.lnk"
    Delete "$SMSTARTUP\${NAME}.lnk"
    DeleteRegKey ${hive} "${UNINSTALL_KEY}"
!macroend

Function un.RemoveEventSource
    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" InstallLocation
    ReadRegStr $1 HKLM "${EVENT_SOURCE}" EventMessageFile
    ${If} $1 == "$0\${PROGRAM}"
        DeleteRegKey HKLM "${EVENT_SOURCE}"
    ${EndIf}
FunctionEnd

Section Uninstall
    StrCpy $Folder $INSTDIR
    Call un.FreeFiles
    Call un.RemoveFiles
    Call un.RemoveItself
    RMDir "$INSTDIR"
    ${If} $ForAll = 1
        Call un.RemoveEventSource
        !insertmacro Unregister HKLM all
    ${EndIf}
    ${If} $ForUser = 1
        !insertmacro Unregister HKCU current
    ${EndIf}
    ; The lock of a program that was killed. That of a running one can't be deleted.
    SetShellVarContext current
    Delete "$LOCALAPPDATA\Temp\session-*-tarn-mobile-user.lock"
    Delete "$LOCALAPPDATA\session-*-tarn-mobile-user.lock"
SectionEnd
