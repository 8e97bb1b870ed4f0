; SPDX-FileCopyrightText: 2026 The Brindock authors
; SPDX-License-Identifier: GPL-3.0-or-later
;
; The installer for Windows; packaging/windows/installer compiles it.
;
;   /S                 asks nothing and shows nothing; a reason for not doing it goes to standard error
;   /D=FOLDER          where to, not quoted and the last on the line
;   /LANGUAGE=French   a language file's name without its ending
;   /NOSHORTCUT        without the start menu's entry; a suite that is there keeps what was chosen for it
;   /NOASSOCIATIONS    without any association; the same
;
; It ends with 0 when it is done, 1 when the user stopped it, 2 when the folder doesn't take the files, 3 when a suite runs
; there, 4 when another set-up runs. Out of the folder of a suite's downloads it brings that suite up to date and starts it.
; uninstall.exe takes /S and /PURGE, which deletes the settings too. It comes back before it is done, as it has to delete
; itself; with _?=FOLDER, the last on the line and not quoted, it is waited for, and stays.
;
; Defined from outside: VERSION, STAGE (the folder to install), LIST (the File lines), ART (icons and pictures), SIZE (KB),
; OUT.

Unicode true
Target amd64-unicode
SetCompressor /SOLID /FINAL lzma
SetCompressorDictSize 32

!define PRODUCT "Brindock 2005"
!define SETTINGS "Software\Halvern\Brindock\2005"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}"
!define SHORTCUT "$SMPROGRAMS\${PRODUCT}.lnk"

; What a run ends with.
!define CANT_WRITE 2
!define IS_RUNNING 3
!define IS_INSTALLING 4

Name "${PRODUCT}"
OutFile "${OUT}"
BrandingText "${PRODUCT} ${VERSION}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\${PRODUCT}"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
ManifestDPIAware true
ManifestDPIAwareness "PerMonitorV2,PerMonitor"
ManifestLongPathAware true
ManifestSupportedOS Win10
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "CompanyName" "The Brindock authors"
VIAddVersionKey "FileDescription" "${PRODUCT} set-up"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "2026 The Brindock authors, GPL-3.0-or-later"
VIAddVersionKey "ProductName" "${PRODUCT}"
VIAddVersionKey "ProductVersion" "${VERSION}"

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include Sections.nsh
!include StrFunc.nsh
${Using:StrFunc} StrStr

!define MUI_ICON "${ART}\brindock.ico"
!define MUI_UNICON "${ART}\brindock.ico"
!define MUI_HEADERIMAGE
!define MUI_HEADERIMAGE_RIGHT
!define MUI_HEADERIMAGE_BITMAP "${ART}\header.bmp"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${ART}\side.bmp"
!define MUI_UNWELCOMEFINISHPAGE_BITMAP "${ART}\side.bmp"
!define MUI_WELCOMEPAGE_TEXT "$(WelcomeText)"
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_ABORTWARNING
!define MUI_LANGDLL_ALLLANGUAGES
!define MUI_LANGDLL_WINDOWTITLE "$(LanguageTitle)"
!define MUI_LANGDLL_INFO "$(LanguageInfo)"
!define MUI_FINISHPAGE_RUN "$INSTDIR\brindock.exe"
!define MUI_FINISHPAGE_NOREBOOTSUPPORT
!define MUI_UNFINISHPAGE_NOAUTOCLOSE

; An update has asked already: it shows its progress only.
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipInUpdates
!insertmacro MUI_PAGE_WELCOME
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipInUpdates
!insertmacro MUI_PAGE_DIRECTORY
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipInUpdates
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipInUpdates
!insertmacro MUI_PAGE_FINISH

!define MUI_PAGE_CUSTOMFUNCTION_SHOW un.HideSpace
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES

; The first is for users whose language the suite doesn't have.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "Dutch"
!insertmacro MUI_LANGUAGE "Portuguese"
!insertmacro MUI_RESERVEFILE_LANGDLL

Var Updating ; "yes" out of the folder of a suite's downloads
Var Portable ; "yes" when that suite is one that Windows doesn't know of: it gets files and nothing else
Var Former   ; the folder of a suite that Windows knows of; "" when there is none
Var Asked    ; "yes" when the user sees what can be ticked

!include texts.nsh
!include reasons.nsh
!include files.nsh
!include associations.nsh
!include language.nsh
!include install.nsh
!include uninstall.nsh
