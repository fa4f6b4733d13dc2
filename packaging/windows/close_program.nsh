; SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
; SPDX-License-Identifier: Apache-2.0
;
; Closes every running instance in the folder $Folder, as Windows does at sign-out, and waits until
; the program's file is no longer in use. Instances in other sessions can't be closed.

!macro CloseFunctions un
; Sets $R0 to 1 if the program in $Folder is running, perhaps in another session, else to 0.
Function ${un}LookIfRunning
    StrCpy $File "$Folder\${PROGRAM}"
    Call ${un}LookIfUsed
FunctionEnd

; Replaces the path $6 by the identity of the file, which may have several paths; by an empty text if
; the file doesn't exist.
Function ${un}Identify
    System::Call 'kernel32::CreateFileW(w r6, i 0, i 7, p 0, i 3, i 0, p 0) p .r7'
    StrCpy $6 ""
    ${If} $7 == -1
        Return
    ${EndIf}
    System::Alloc 52 ; a BY_HANDLE_FILE_INFORMATION
    Pop $8
    System::Call 'kernel32::GetFileInformationByHandle(p r7, p r8) i .r9'
    ${If} $9 <> 0
        System::Call '*$8(i, i, i, i, i, i, i, i .r6, i, i, i, i .r9, i .R9)'
        StrCpy $6 "$6 $9 $R9"
    ${EndIf}
    System::Free $8
    System::Call 'kernel32::CloseHandle(p r7)'
FunctionEnd

; Sets $4 to 1 if process $3 runs the file with the identity $2, else to 0.
Function ${un}IsOurs
    StrCpy $4 0
    ; PROCESS_QUERY_LIMITED_INFORMATION
    System::Call 'kernel32::OpenProcess(i 0x1000, i 0, i r3) p .r5'
    ${If} $5 P<> 0
        System::Call 'kernel32::QueryFullProcessImageNameW(p r5, i 0, w .r6, *i ${NSIS_MAX_STRLEN})'
        System::Call 'kernel32::CloseHandle(p r5)'
        Call ${un}Identify
        ${If} $6 == $2
            StrCpy $4 1
        ${EndIf}
    ${EndIf}
FunctionEnd

; Finds all windows before it closes the first: those of a program that exits disappear.
Function ${un}AskToEnd
    StrCpy $6 "$Folder\${PROGRAM}"
    Call ${un}Identify
    StrCpy $2 $6
    ${If} $2 == ""
        Return
    ${EndIf}
    StrCpy $0 0
    StrCpy $1 0
    ${Do}
        System::Call 'user32::FindWindowExW(p 0, p r0, p 0, p 0) p .r0'
        ${If} $0 P= 0
            ${Break}
        ${EndIf}
        System::Call 'user32::GetWindowThreadProcessId(p r0, *i .r3)'
        Call ${un}IsOurs
        ${If} $4 = 1
            Push $0
            IntOp $1 $1 + 1
        ${EndIf}
    ${Loop}
    ${DoWhile} $1 > 0
        Pop $0
        IntOp $1 $1 - 1
        StrCpy $5 0
        ; The last arguments: ENDSESSION_CLOSEAPP, SMTO_ABORTIFHUNG, the limit in milliseconds.
        System::Call 'user32::SendMessageTimeoutW(p r0, i ${WM_QUERYENDSESSION}, p 0, p 1, i 2, i 5000, *p r5r5)'
        ${If} $5 P<> 0
            System::Call 'user32::PostMessageW(p r0, i ${WM_ENDSESSION}, p 1, p 1)'
        ${EndIf}
    ${Loop}
FunctionEnd

Function ${un}CloseProgram
    Call ${un}LookIfRunning
    ${If} $R0 = 0
        Return
    ${EndIf}
    MessageBox MB_OKCANCEL|MB_ICONEXCLAMATION $(IsRunning) /SD IDOK IDOK ask
    SetErrorLevel 1
    Abort
    ask:
    ${For} $R8 0 59
        ; Windows that open or close meanwhile can hide others from a single pass.
        IntOp $R7 $R8 % 20
        ${If} $R7 = 0
            Call ${un}AskToEnd
        ${EndIf}
        Sleep 250
        Call ${un}LookIfRunning
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
