; SPDX-FileCopyrightText: 2026 The Brindock authors
; SPDX-License-Identifier: GPL-3.0-or-later
;
; All that the installer and the suite have made goes. What is the user's stays: the settings, unless they are ticked, and
; always what the suite keeps in the local application data: rescue copies, and the journal with what installs replaced.

Section "un.${PRODUCT}" SectionUnProgram
  SectionIn RO
  !insertmacro NameFolder
  File "/oname=$PLUGINSDIR\${LIST_NAME}" "${STAGE}\${LIST_NAME}"
  Push "$PLUGINSDIR\${LIST_NAME}"
  Push $INSTDIR
  Call un.WaitForClosed
  ${If} $Running != ""
    SetErrorLevel ${IS_RUNNING}
    ${If} ${Silent}
      Push "$Blocker is in use: the suite runs; nothing was changed"
      Call un.TellScript
    ${EndIf}
    Abort
  ${EndIf}
  SetOutPath $TEMP
  StrCpy $Folder $INSTDIR
  Call un.IsRegistered
  ${If} $0 != ""
    Delete "${SHORTCUT}"
    !insertmacro GiveBackAll
    !insertmacro TellDesktop
    DeleteRegKey HKCU "${UNINSTALL}"
  ${EndIf}
  Push "$PLUGINSDIR\${LIST_NAME}"
  Call un.RemoveProgram
SectionEnd

Section /o "un.$(SettingsName)" SectionUnSettings
  DeleteRegKey HKCU "${SETTINGS}"
  DeleteRegKey /ifempty HKCU "Software\Halvern\Brindock"
  DeleteRegKey /ifempty HKCU "Software\Halvern"
SectionEnd

!insertmacro MUI_UNFUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionUnProgram} "$(RemovedTold)"
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionUnSettings} "$(SettingsTold)"
!insertmacro MUI_UNFUNCTION_DESCRIPTION_END

Function un.onInit
  Call un.BeAlone
  Call un.SpeakAsTheSuite
  ${If} ${Silent}
    StrCpy $Patience ${PATIENT}
  ${EndIf}
  ${GetParameters} $2
  ClearErrors
  ${GetOptions} $2 "/PURGE" $0
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${SectionUnSettings}
  ${EndIf}
FunctionEnd

; Uninstalling needs no space.
Function un.HideSpace
  FindWindow $0 "#32770" "" $HWNDPARENT
  GetDlgItem $0 $0 1023
  ShowWindow $0 ${SW_HIDE}
FunctionEnd
