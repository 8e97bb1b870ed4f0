; SPDX-FileCopyrightText: 2026 The Brindock authors
; SPDX-License-Identifier: GPL-3.0-or-later
;
; The suite's files, by the list of them that lies beside them. Included for the installer and the uninstaller alike.

!define LIST_NAME "files.txt"
; Where new files wait until all of them are there.
!define WAITING ".brindock-setup"

Var Folder  ; the one that a walk over a list is about
Var File    ; the file that the walk has come to, relative to it
Var Step    ; the function that the walk calls
Var Blocker ; the file that can't be replaced; "" when there is none
Var Running ; "yes" when it is because somebody uses it

; How many half seconds a suite gets to end before somebody is asked. Where nobody can be asked, and where it has just ended
; itself for its update, that is ten seconds.
Var Patience
!define PATIENT 20

; Calls a function for each line of a list.
!macro Walk UN LIST FOLDER STEP
  StrCpy $Folder "${FOLDER}"
  GetFunctionAddress $Step "${UN}${STEP}"
  Push "${LIST}"
  Call ${UN}WalkList
!macroend

!macro Files UN
  Function ${UN}WalkList
    Exch $R0
    Push $R1
    ClearErrors
    FileOpen $R1 $R0 r
    ${IfNot} ${Errors}
      ${Do}
        FileRead $R1 $File
        ${If} ${Errors}
          ${Break}
        ${EndIf}
        Call ${UN}CutLine
        ${If} $File != ""
          Call $Step
        ${EndIf}
        ClearErrors
      ${Loop}
      FileClose $R1
    ${EndIf}
    Pop $R1
    Pop $R0
  FunctionEnd

  Function ${UN}CutLine
    ${Do}
      StrCpy $0 $File 1 -1
      ${If} $0 != "$\r"
      ${AndIf} $0 != "$\n"
        ${Break}
      ${EndIf}
      StrCpy $File $File -1
    ${Loop}
  FunctionEnd

  ; A step: whether the file can be replaced. A program that runs can't be opened for writing.
  Function ${UN}LookWhetherFree
    ${If} $Blocker != ""
    ${OrIfNot} ${FileExists} "$Folder\$File"
      Return
    ${EndIf}
    SetFileAttributes "$Folder\$File" NORMAL
    System::Call 'kernel32::CreateFileW(w "$Folder\$File", i 0x40000000, i 7, p 0, i 3, i 0, p 0) p.r0 ?e'
    Pop $1
    ${If} $0 P<> -1
      System::Call 'kernel32::CloseHandle(p r0)'
      Return
    ${EndIf}
    StrCpy $Blocker "$Folder\$File"
    ${If} $1 = 32 ; ERROR_SHARING_VIOLATION
      StrCpy $Running yes
    ${EndIf}
  FunctionEnd

  ; A step: deletes the file, and its folder when it was the last one there.
  Function ${UN}Remove
    Delete "$Folder\$File"
    ${GetParent} "$Folder\$File" $0
    ${If} $0 != $Folder
      RMDir $0
    ${EndIf}
  FunctionEnd

  ; Asks to close the suite until none of its files is in use, or the user gives up; what then blocks is in $Blocker. On the
  ; stack: the list, and above it the folder.
  Function ${UN}WaitForClosed
    Exch $R2
    Exch
    Exch $R3
    Push $R4
    StrCpy $R4 0
    ${Do}
      StrCpy $Blocker ""
      StrCpy $Running ""
      !insertmacro Walk "${UN}" "$R3" "$R2" LookWhetherFree
      ${If} $Running == ""
        ${Break}
      ${EndIf}
      ${If} $R4 < $Patience
        IntOp $R4 $R4 + 1
        Sleep 500
      ${ElseIf} ${Silent}
      ${OrIfNot} ${Cmd} 'MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(PleaseClose)" IDRETRY'
        ${Break}
      ${EndIf}
    ${Loop}
    Pop $R4
    Pop $R3
    Pop $R2
  FunctionEnd

  ; What the suite keeps in its folder while it works; what lies behind a link is left alone.
  Function ${UN}RemoveScratch
    !insertmacro RemoveScratchFolder Temp
    !insertmacro RemoveScratchFolder TempPrev
    !insertmacro RemoveScratchFolder TempUpdater
    !insertmacro RemoveScratchFolder ${WAITING}
    Delete "$Folder\localization.log"
  FunctionEnd

  ; Whether $Folder is that of the suite that Windows knows of: $0 is "yes" or "".
  Function ${UN}IsRegistered
    ReadRegStr $1 HKCU "${UNINSTALL}" "InstallLocation"
    StrCpy $0 ""
    ${If} $1 != ""
    ${AndIf} $1 == $Folder
      StrCpy $0 yes
    ${EndIf}
  FunctionEnd

  ; The program out of $Folder, and the folder when nothing else is in it.
  Function ${UN}RemoveProgram
    Exch $R5
    !insertmacro Walk "${UN}" "$R5" "$Folder" Remove
    Call ${UN}RemoveScratch
    Delete "$Folder\icons\archive.ico"
    Delete "$Folder\icons\table.ico"
    Delete "$Folder\icons\map.ico"
    Delete "$Folder\icons\replay.ico"
    RMDir "$Folder\icons"
    Delete "$Folder\uninstall.exe"
    RMDir "$Folder"
    Pop $R5
  FunctionEnd
!macroend

!macro RemoveScratchFolder NAME
  System::Call 'kernel32::GetFileAttributesW(w "$Folder\${NAME}") i.r0'
  IntOp $1 $0 & 0x400 ; FILE_ATTRIBUTE_REPARSE_POINT
  ${If} $0 <> -1
    ${If} $1 <> 0
      RMDir "$Folder\${NAME}"
    ${Else}
      RMDir /r "$Folder\${NAME}"
    ${EndIf}
  ${EndIf}
!macroend

!insertmacro Files ""
!insertmacro Files "un."
