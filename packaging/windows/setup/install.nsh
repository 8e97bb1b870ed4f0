; SPDX-FileCopyrightText: 2026 The Brindock authors
; SPDX-License-Identifier: GPL-3.0-or-later
;
; A new suite, or one over an old one: what runs is closed first, and the new files take their places only when all of them
; are there.

Section "${PRODUCT}" SectionProgram
  SectionIn RO
  AddSize ${SIZE}
  !insertmacro NameFolder
  Call CutFolder
  Call LayWaiting
  Call CloseSuite
  Call DropOld
  Call TakePlaces
  ${If} $Portable == ""
    Call LayIcons
    Call LeaveFormer
    WriteUninstaller "$INSTDIR\uninstall.exe"
    Call Register
    Call StoreLanguage
  ${EndIf}
SectionEnd

Section "$(ShortcutName)" SectionShortcut
SectionEnd

SectionGroup "$(AssociationsName)" SectionAssociations
  Section "$(ArchivesName)" SectionArchives
  SectionEnd
  Section "$(TablesName)" SectionTables
  SectionEnd
  Section "$(MapsName)" SectionMaps
  SectionEnd
  Section "$(ReplaysName)" SectionReplays
  SectionEnd
SectionGroupEnd

; What is ticked is made, what isn't any more is taken back.
!macro Choice SECTION TAKE KIND ENDING
  ${If} ${SectionIsSelected} ${${SECTION}}
    Call ${TAKE}
  ${Else}
    !insertmacro GiveBack ${KIND} ${ENDING}
  ${EndIf}
!macroend

Section "-choices"
  ${If} $Portable == ""
    ${If} ${SectionIsSelected} ${SectionShortcut}
      SetOutPath $INSTDIR
      CreateShortcut "${SHORTCUT}" "$INSTDIR\brindock.exe"
    ${Else}
      Delete "${SHORTCUT}"
    ${EndIf}
    !insertmacro Choice SectionArchives TakeArchives ${ARCHIVE} .big
    !insertmacro Choice SectionTables TakeTables ${TABLE} .csf
    !insertmacro Choice SectionMaps TakeMaps ${MAP} .map
    !insertmacro Choice SectionReplays TakeReplays ${REPLAY} .rep
    !insertmacro TellDesktop
  ${EndIf}
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionProgram} "$(ProgramTold)"
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionShortcut} "$(ShortcutTold)"
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionAssociations} "$(AssociationsTold)"
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionArchives} "$(ArchivesTold)"
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionTables} "$(TablesTold)"
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionMaps} "$(AddedTold)"
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionReplays} "$(AddedTold)"
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; ---- Before anything is changed

!macro GiveUp CODE WORDS TEXT
  !insertmacro Tell "" "${WORDS}" "${TEXT}"
  SetErrorLevel ${CODE}
  Abort
!macroend

Function .onInit
  Call BeAlone
  Call FindSuites
  Call ChooseLanguage
  ${If} $Updating == ""
    Call CutFolder
    Call MindFolder
  ${EndIf}
  StrCpy $Asked yes
  ${If} ${Silent}
  ${OrIf} $Updating != ""
    StrCpy $Asked ""
    StrCpy $Patience ${PATIENT}
    SetAutoClose true
  ${EndIf}
  Call TickWhatWasChosen
FunctionEnd

; One folder has one name: without a separator at its end.
Function CutFolder
  StrCpy $0 $INSTDIR 1 -1
  ${If} $0 == "\"
    StrCpy $INSTDIR $INSTDIR -1
  ${EndIf}
FunctionEnd

; Which suite it is about: the one that downloaded this set-up, or the one that Windows knows of.
Function FindSuites
  ReadRegStr $Former HKCU "${UNINSTALL}" "InstallLocation"
  ${GetFileName} $EXEDIR $0
  ${If} $0 == "TempUpdater"
    ${GetParent} $EXEDIR $Folder
    ${If} ${FileExists} "$Folder\brindock.exe"
      StrCpy $Updating yes
      StrCpy $INSTDIR $Folder
      Call IsRegistered
      ${If} $0 == ""
        StrCpy $Portable yes
      ${EndIf}
    ${EndIf}
  ${EndIf}
FunctionEnd

; NSIS passes over a folder that can't be one, and would install into the usual one.
Function MindFolder
  System::Call 'kernel32::GetCommandLineW() w.r1'
  ${StrStr} $0 $1 " /D="
  ${If} $0 != ""
    StrCpy $0 $0 "" 4
    ${Do}
      StrCpy $1 $0 1 -1
      ${If} $1 != "\"
      ${AndIf} $1 != " "
        ${Break}
      ${EndIf}
      StrCpy $0 $0 -1
    ${Loop}
    ${If} $0 != $INSTDIR
      !insertmacro GiveUp ${CANT_WRITE} "$0 can't be a folder; nothing was changed" "$(CantWrite)$\r$\n$0"
    ${EndIf}
  ${EndIf}
FunctionEnd

; Somebody who sees the ticks would take an ending back with one that stands for what another program has by now.
!macro TickIfKnown SECTION KIND ENDING
  !insertmacro IsKnown ${KIND} $0
  ReadRegStr $1 HKCU "${CLASSES}\${ENDING}" ""
  ${If} $Asked == ""
    StrCpy $1 "${KIND}"
  ${EndIf}
  ${If} $0 == ""
  ${OrIf} $1 != "${KIND}"
    !insertmacro UnselectSection ${${SECTION}}
  ${EndIf}
!macroend

!macro UntickOnRequest OPTION SECTION
  ClearErrors
  ${GetOptions} $2 "${OPTION}" $0
  ${IfNot} ${Errors}
    !insertmacro UnselectSection ${${SECTION}}
  ${EndIf}
!macroend

Function TickWhatWasChosen
  ${If} $Former != ""
    ${IfNot} ${FileExists} "${SHORTCUT}"
      !insertmacro UnselectSection ${SectionShortcut}
    ${EndIf}
    !insertmacro TickIfKnown SectionArchives ${ARCHIVE} .big
    !insertmacro TickIfKnown SectionTables ${TABLE} .csf
    !insertmacro TickIfKnown SectionMaps ${MAP} .map
    !insertmacro TickIfKnown SectionReplays ${REPLAY} .rep
  ${EndIf}
  ${GetParameters} $2
  !insertmacro UntickOnRequest /NOSHORTCUT SectionShortcut
  !insertmacro UntickOnRequest /NOASSOCIATIONS SectionArchives
  !insertmacro UntickOnRequest /NOASSOCIATIONS SectionTables
  !insertmacro UntickOnRequest /NOASSOCIATIONS SectionMaps
  !insertmacro UntickOnRequest /NOASSOCIATIONS SectionReplays
FunctionEnd

Function SkipInUpdates
  ${If} $Updating != ""
    Abort
  ${EndIf}
FunctionEnd

; ---- The files

; All new files, beside the old ones.
Function LayWaiting
  RMDir /r "$INSTDIR\${WAITING}"
  ClearErrors
  CreateDirectory "$INSTDIR\${WAITING}"
  SetOverwrite try
  !include "${LIST}"
  SetOverwrite on
  SetOutPath $TEMP
  ${If} ${Errors}
    !insertmacro GiveUp ${CANT_WRITE} "$INSTDIR does not take the files; nothing was changed" "$(CantWrite)$\r$\n$INSTDIR"
  ${EndIf}
FunctionEnd

; Old files that nobody uses can be replaced.
Function CloseSuite
  ${If} ${FileExists} "$Former\${WAITING}\${LIST_NAME}"
    StrCpy $Former $INSTDIR ; the same folder by another name
  ${EndIf}
  Push "$INSTDIR\${WAITING}\${LIST_NAME}"
  Push $INSTDIR
  Call WaitForClosed
  ${If} $Blocker == ""
  ${AndIf} $Portable == ""
  ${AndIf} $Former != ""
  ${AndIf} $Former != $INSTDIR
    Push "$INSTDIR\${WAITING}\${LIST_NAME}"
    Push $Former
    Call WaitForClosed
  ${EndIf}
  ${If} $Running != ""
    SetErrorLevel ${IS_RUNNING}
    ${If} ${Silent}
      Push "$Blocker is in use: the suite runs; nothing was changed"
      Call TellScript
    ${EndIf}
    Abort
  ${ElseIf} $Blocker != ""
    !insertmacro GiveUp ${CANT_WRITE} "$Blocker can't be replaced; nothing was changed" "$(CantWrite)$\r$\n$Blocker"
  ${EndIf}
FunctionEnd

; What the old suite had and the new one has no more.
Function DropOld
  !insertmacro Walk "" "$INSTDIR\${LIST_NAME}" "$INSTDIR" RemoveIfGone
FunctionEnd

; The old list lies in the open: it must not lead out of the folder.
Function LeadsOut
  StrCpy $1 $File 1
  ${StrStr} $0 $File ".."
  ${If} $0 == ""
    ${StrStr} $0 $File ":"
  ${EndIf}
  ${If} $1 == "\"
  ${OrIf} $1 == "/"
    StrCpy $0 yes
  ${EndIf}
FunctionEnd

Function RemoveIfGone
  Call LeadsOut
  ${If} $0 == ""
  ${AndIfNot} ${FileExists} "$INSTDIR\${WAITING}\$File"
    Call Remove
  ${EndIf}
FunctionEnd

Function RemoveIfInside
  Call LeadsOut
  ${If} $0 == ""
    Call Remove
  ${EndIf}
FunctionEnd

; The address of the server is set where the suite is installed.
Function TakePlaces
  ${If} $Former != ""
  ${AndIf} $Former != $INSTDIR
  ${AndIf} $Portable == ""
  ${AndIfNot} ${FileExists} "$INSTDIR\updater.cfg"
    CopyFiles /SILENT "$Former\updater.cfg" "$INSTDIR\updater.cfg"
  ${EndIf}
  ${If} ${FileExists} "$INSTDIR\updater.cfg"
    Delete "$INSTDIR\${WAITING}\updater.cfg"
  ${EndIf}
  StrCpy $Blocker ""
  CopyFiles /SILENT "$INSTDIR\${WAITING}\${LIST_NAME}" "$PLUGINSDIR\new.txt"
  !insertmacro Walk "" "$PLUGINSDIR\new.txt" "$INSTDIR" TakePlace
  RMDir /r "$INSTDIR\${WAITING}"
  ${If} $Blocker != ""
    !insertmacro GiveUp ${CANT_WRITE} "$Blocker can't be replaced; run the set-up again" "$(CantWrite)$\r$\n$Blocker"
  ${EndIf}
FunctionEnd

; A step: each file takes the place of its forerunner at once.
Function TakePlace
  ${If} ${FileExists} "$INSTDIR\${WAITING}\$File"
    ${GetParent} "$INSTDIR\$File" $0
    CreateDirectory $0
    System::Call 'kernel32::MoveFileExW(w "$INSTDIR\${WAITING}\$File", w "$INSTDIR\$File", i 1) i.r0'
    ${If} $0 = 0
      StrCpy $Blocker "$INSTDIR\$File"
    ${EndIf}
  ${EndIf}
FunctionEnd

Function LayIcons
  SetOutPath "$INSTDIR\icons"
  File "${ART}\archive.ico"
  File "${ART}\table.ico"
  File "${ART}\map.ico"
  File "${ART}\replay.ico"
  SetOutPath $TEMP
FunctionEnd

; A suite that was in another folder has moved.
Function LeaveFormer
  ${If} $Former != ""
  ${AndIf} $Former != $INSTDIR
  ${AndIf} ${FileExists} "$Former\${LIST_NAME}"
    CopyFiles /SILENT "$Former\${LIST_NAME}" "$PLUGINSDIR\former.txt"
    !insertmacro Walk "" "$PLUGINSDIR\former.txt" "$Former" RemoveIfInside
    Push "$PLUGINSDIR\former.txt"
    Call RemoveProgram
  ${EndIf}
FunctionEnd

; ---- What Windows knows of it

Function Register
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\brindock.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Brindock authors"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
FunctionEnd

; ---- Behind it

; A suite that ended for its update goes on.
Function StartSuite
  SetOutPath $INSTDIR
  Exec '"$INSTDIR\brindock.exe"'
FunctionEnd

Function .onInstSuccess
  ${If} $Updating != ""
    Call StartSuite
  ${EndIf}
FunctionEnd

Function .onInstFailed
  SetOutPath $TEMP
  RMDir /r "$INSTDIR\${WAITING}"
  RMDir $INSTDIR
  ${If} $Updating != ""
    Call StartSuite
  ${EndIf}
FunctionEnd
