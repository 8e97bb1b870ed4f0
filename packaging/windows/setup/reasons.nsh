; SPDX-FileCopyrightText: 2026 The Brindock authors
; SPDX-License-Identifier: GPL-3.0-or-later
;
; What a set-up says while it goes on, and when it can't. Included for the installer and the uninstaller alike.

; What somebody reads above the progress; the single steps are of no use to anybody.
!macro NameFolder
  SetDetailsPrint textonly
  DetailPrint $INSTDIR
  SetDetailsPrint none
!macroend

; Says a reason to somebody who sees windows, or to the script that waits.
!macro Tell UN WORDS TEXT
  ${If} ${Silent}
    Push "${WORDS}"
    Call ${UN}TellScript
  ${Else}
    MessageBox MB_OK|MB_ICONSTOP "${TEXT}"
  ${EndIf}
!macroend

!macro Reasons UN
  ; One line on standard error: a program with windows has one where its caller gave it one, else that of its caller's console.
  Function ${UN}TellScript
    Exch $0
    Push $1
    Push $2
    System::Call 'kernel32::GetStdHandle(i -12) p.r1'
    ${If} $1 P= 0
    ${OrIf} $1 P= -1
      System::Call 'kernel32::AttachConsole(i -1)'
      System::Call 'kernel32::GetStdHandle(i -12) p.r1'
    ${EndIf}
    StrCpy $0 "${PRODUCT}: $0$\r$\n"
    StrLen $2 $0
    System::Call 'kernel32::WriteFile(p r1, m r0, i r2, *i, p 0)'
    Pop $2
    Pop $1
    Pop $0
  FunctionEnd

  ; Two set-ups at once would tear a folder apart.
  Function ${UN}BeAlone
    System::Call 'kernel32::CreateMutexW(p 0, i 0, w "Brindock2005Setup") p ?e'
    Pop $0
    ${If} $0 = 183 ; ERROR_ALREADY_EXISTS
      !insertmacro Tell "${UN}" "another set-up runs" "$(OtherSetup)"
      SetErrorLevel ${IS_INSTALLING}
      Quit
    ${EndIf}
  FunctionEnd
!macroend
!insertmacro Reasons ""
!insertmacro Reasons "un."
