; SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
; SPDX-License-Identifier: Apache-2.0
;
; Removes the files of the program from the folder $Folder, unless one of them is in use.

Var Folder
; The file that is in use or can't be removed; otherwise empty.
Var File

!macro FindUsed un file
    ${If} $R0 = 0
        StrCpy $File "$Folder\${file}"
        Call ${un}LookIfUsed
    ${EndIf}
!macroend

!macro RemoveFile un file
    Delete "$Folder\${file}"
    ${If} ${FileExists} "$Folder\${file}"
        StrCpy $File "$Folder\${file}"
    ${EndIf}
!macroend

; $File can't be removed.
!macro EndIncomplete
    MessageBox MB_OK|MB_ICONSTOP $(NotRemoved) /SD IDOK
    SetErrorLevel 5
    Quit
!macroend

!macro FileFunctions un
; Sets $R0 to 1 if another program has $File open in a way that prevents its removal, else to 0.
Function ${un}LookIfUsed
    StrCpy $R0 0
    ; GENERIC_WRITE and DELETE, sharing everything, OPEN_EXISTING
    System::Call 'kernel32::CreateFileW(w "$File", i 0x40010000, i 7, p 0, i 3, i 0, p 0) p .r0 ?e'
    Pop $1
    ${If} $0 != -1
        System::Call 'kernel32::CloseHandle(p r0)'
    ${ElseIf} $1 = 32 ; ERROR_SHARING_VIOLATION
        StrCpy $R0 1
    ${EndIf}
FunctionEnd

; Closes the program, then makes sure that nothing else uses its files. It looks several times:
; a virus scanner uses a file for a moment only.
Function ${un}FreeFiles
    again:
    Call ${un}CloseProgram
    ${For} $R8 1 8
        StrCpy $R0 0
        !insertmacro ForEachFile FindUsed "${un}"
        ${If} $R0 = 0
            Return
        ${EndIf}
        Sleep 250
    ${Next}
    MessageBox MB_RETRYCANCEL|MB_ICONSTOP $(InUse) /SD IDCANCEL IDRETRY again
    SetErrorLevel 2
    Quit
FunctionEnd

Function ${un}RemoveFiles
    ${For} $R8 1 8
        StrCpy $File ""
        !insertmacro ForEachFile RemoveFile "${un}"
        ${If} $File == ""
            !insertmacro RemoveFolders
            Return
        ${EndIf}
        Sleep 250
    ${Next}
    !insertmacro EndIncomplete
FunctionEnd
!macroend
!insertmacro FileFunctions ""
!insertmacro FileFunctions "un."
