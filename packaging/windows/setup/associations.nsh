; SPDX-FileCopyrightText: 2026 The Brindock authors
; SPDX-License-Identifier: GPL-3.0-or-later
;
; What opens the games' files. Each ending points at a kind of ours; what it pointed at before is kept in the kind's value
; "Before", and comes back with GiveBack. %1 stands without quotes: the suite takes what is behind its switch as it is.

!define CLASSES "Software\Classes"
!define EXPLORER "Software\Microsoft\Windows\CurrentVersion\Explorer\FileExts"
!define ARCHIVE "Brindock2005.Archive"
!define TABLE "Brindock2005.Table"
!define MAP "Brindock2005.Map"
!define REPLAY "Brindock2005.Replay"

; Describes a kind of file.
!macro Kind KIND NAME ICON
  WriteRegStr HKCU "${CLASSES}\${KIND}" "" "${NAME}"
  WriteRegStr HKCU "${CLASSES}\${KIND}\DefaultIcon" "" "$INSTDIR\icons\${ICON}.ico"
  WriteRegStr HKCU "${CLASSES}\${KIND}\shell" "" open
!macroend

; Adds what can be done with the kind; without a text Windows has one of its own. A double click is "open" whatever it does, as
; some programs ask for no other.
!macro Verb KIND VERB TEXT SWITCH
  !if "${TEXT}" != ""
    WriteRegStr HKCU "${CLASSES}\${KIND}\shell\${VERB}" "" "${TEXT}"
  !endif
  WriteRegStr HKCU "${CLASSES}\${KIND}\shell\${VERB}\command" "" '"$INSTDIR\brindock.exe" ${SWITCH} %1'
!macroend

; Points an ending at its kind. What another program has taken meanwhile stays its own, unless the user ticks it again.
!macro Take KIND ENDING KNOWN
  ReadRegStr $0 HKCU "${CLASSES}\${ENDING}" ""
  ${If} $0 != "${KIND}"
    ${If} ${KNOWN} == ""
    ${OrIf} $Asked != ""
      ${If} $0 != ""
        WriteRegStr HKCU "${CLASSES}\${KIND}" "Before" $0
      ${EndIf}
      WriteRegStr HKCU "${CLASSES}\${ENDING}" "" "${KIND}"
    ${EndIf}
  ${EndIf}
  WriteRegStr HKCU "${CLASSES}\${ENDING}\OpenWithProgids" "${KIND}" ""
!macroend

!macro IsKnown KIND RESULT
  ReadRegStr ${RESULT} HKCU "${CLASSES}\${KIND}" ""
!macroend

; Gives an ending back to the program that had it, if that is still there, and forgets the kind.
!macro GiveBack KIND ENDING
  ReadRegStr $0 HKCU "${CLASSES}\${ENDING}" ""
  ${If} $0 == "${KIND}"
    ReadRegStr $0 HKCU "${CLASSES}\${KIND}" "Before"
    ${If} $0 != ""
      EnumRegKey $1 HKCR $0 0
      EnumRegKey $2 HKCU "${CLASSES}\$0" 0
      ${If} "$1$2" == ""
        StrCpy $0 ""
      ${EndIf}
    ${EndIf}
    ${If} $0 == ""
      DeleteRegValue HKCU "${CLASSES}\${ENDING}" ""
    ${Else}
      WriteRegStr HKCU "${CLASSES}\${ENDING}" "" $0
    ${EndIf}
  ${EndIf}
  DeleteRegValue HKCU "${CLASSES}\${ENDING}\OpenWithProgids" "${KIND}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\${ENDING}\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\${ENDING}"
  DeleteRegKey HKCU "${CLASSES}\${KIND}"
  ; Windows' own note of it.
  DeleteRegValue HKCU "${EXPLORER}\${ENDING}\OpenWithProgids" "${KIND}"
!macroend

; Windows shows its new icons.
!macro TellDesktop
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)' ; SHCNE_ASSOCCHANGED
!macroend

Function TakeArchives
  !insertmacro IsKnown ${ARCHIVE} $9
  !insertmacro Kind ${ARCHIVE} "$(ArchiveKind)" archive
  !insertmacro Verb ${ARCHIVE} open "" /tbig
  !insertmacro Verb ${ARCHIVE} extract "$(ExtractVerb)" /bige
  !insertmacro Take ${ARCHIVE} .big $9
FunctionEnd

Function TakeTables
  !insertmacro IsKnown ${TABLE} $9
  !insertmacro Kind ${TABLE} "$(TableKind)" table
  !insertmacro Verb ${TABLE} open "" /tcsf
  !insertmacro Take ${TABLE} .csf $9
FunctionEnd

Function TakeMaps
  !insertmacro IsKnown ${MAP} $9
  !insertmacro Kind ${MAP} "$(MapKind)" map
  !insertmacro Verb ${MAP} open "$(AddVerb)" /addfile
  !insertmacro Take ${MAP} .map $9
FunctionEnd

; Those of the Middle-earth games have endings that /addfile refuses.
Function TakeReplays
  !insertmacro IsKnown ${REPLAY} $9
  !insertmacro Kind ${REPLAY} "$(ReplayKind)" replay
  !insertmacro Verb ${REPLAY} open "$(AddVerb)" /addfile
  !insertmacro Take ${REPLAY} .rep $9
FunctionEnd

!macro GiveBackAll
  !insertmacro GiveBack ${ARCHIVE} .big
  !insertmacro GiveBack ${TABLE} .csf
  !insertmacro GiveBack ${MAP} .map
  !insertmacro GiveBack ${REPLAY} .rep
!macroend
