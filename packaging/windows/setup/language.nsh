; SPDX-FileCopyrightText: 2026 The Brindock authors
; SPDX-License-Identifier: GPL-3.0-or-later
;
; The set-up speaks the suite's language, and the suite starts in that of its set-up.

; Does a step for each language, with its name in the language file and its number.
!macro EachLanguage STEP
  !insertmacro ${STEP} English ${LANG_ENGLISH}
  !insertmacro ${STEP} French ${LANG_FRENCH}
  !insertmacro ${STEP} German ${LANG_GERMAN}
  !insertmacro ${STEP} Spanish ${LANG_SPANISH}
  !insertmacro ${STEP} Italian ${LANG_ITALIAN}
  !insertmacro ${STEP} Dutch ${LANG_DUTCH}
  !insertmacro ${STEP} Portuguese ${LANG_PORTUGUESE}
!macroend

!macro SpeakIfFile NAME NUMBER
  ${If} $0 == "${NAME}.lng"
    StrCpy $LANGUAGE ${NUMBER}
    StrCpy $1 yes
  ${EndIf}
!macroend

!macro FileIfSpoken NAME NUMBER
  ${If} $LANGUAGE = ${NUMBER}
    StrCpy $0 "${NAME}.lng"
  ${EndIf}
!macroend

!macro Languages UN
  ; Takes the language of the file name $0; $1 becomes "yes" when it is one of the set-up's.
  Function ${UN}Speak
    StrCpy $1 ""
    !insertmacro EachLanguage SpeakIfFile
  FunctionEnd

  Function ${UN}SpeakAsTheSuite
    ReadRegStr $0 HKCU "${SETTINGS}" "TradFileName"
    Call ${UN}Speak
  FunctionEnd
!macroend
!insertmacro Languages ""
!insertmacro Languages "un."

; The command line's language, the suite's, or the one that the user picks; else Windows' own.
Function ChooseLanguage
  ${GetParameters} $2
  ClearErrors
  ${GetOptions} $2 "/LANGUAGE=" $0
  ${IfNot} ${Errors}
    StrCpy $0 "$0.lng"
    Call Speak
  ${Else}
    Call SpeakAsTheSuite
  ${EndIf}
  ${If} $1 == ""
  ${AndIf} $Updating == ""
    !insertmacro MUI_LANGDLL_DISPLAY
  ${EndIf}
FunctionEnd

; Where none was chosen yet.
Function StoreLanguage
  ReadRegStr $0 HKCU "${SETTINGS}" "TradFileName"
  ${If} $0 == ""
    !insertmacro EachLanguage FileIfSpoken
    ${If} $0 != ""
      WriteRegStr HKCU "${SETTINGS}" "TradFileName" $0
    ${EndIf}
  ${EndIf}
FunctionEnd
