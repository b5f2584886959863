; The installer for one person: no administrator needed, nothing outside the person's own folders.
; Run by package/make with
;   VERSION   the program's version
;   PROGRAM   velnor.exe
;   GUIDE     the short guide, README.txt
;   WHOLE_GUIDE  the whole one, README.md
;   ICON      the icon of the program
;   OUTPUT    the installer to write
; Silent: velnor-VERSION-setup.exe /S [/D=FOLDER], and "uninstall.exe" /S.

Unicode true
Target amd64-unicode ; the program is 64-bit, so the installer may be; Wine needs no 32-bit part
!include MUI2.nsh
!include FileFunc.nsh

!define NAME "Velnor calorie counter"
!define OWN_KEY "Software\Velnor"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Velnor"
!define SHORTCUT "$SMPROGRAMS\${NAME}.lnk"

Name "${NAME}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
SetCompressor /SOLID lzma
ShowInstDetails nevershow
ShowUninstDetails nevershow
BrandingText "${NAME} ${VERSION}"
; A file that cannot be written ends the installation instead of being left out.
AllowSkipFiles off

; An upgrade goes where the program already is.
InstallDir "$LOCALAPPDATA\Programs\Velnor"
InstallDirRegKey HKCU "${OWN_KEY}" "ProgramFolder"

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs ${NAME}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey LegalCopyright ""

Var DataFolder

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING

!insertmacro MUI_PAGE_DIRECTORY

!define MUI_PAGE_HEADER_TEXT "Your data"
!define MUI_PAGE_HEADER_SUBTEXT "Choose the folder in which the program keeps what you write into it."
!define MUI_DIRECTORYPAGE_TEXT_TOP "Users, food diaries and reports are plain files in this folder. \
    Back it up as you do your documents. Neither an upgrade nor the removal of the program touches it."
!define MUI_DIRECTORYPAGE_TEXT_DESTINATION "Data folder"
!define MUI_DIRECTORYPAGE_VARIABLE $DataFolder
!insertmacro MUI_PAGE_DIRECTORY

!insertmacro MUI_PAGE_INSTFILES

!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Start ${NAME}"
!define MUI_FINISHPAGE_RUN_FUNCTION StartProgram
!insertmacro MUI_PAGE_FINISH

!define MUI_UNCONFIRMPAGE_TEXT_TOP "The program will be removed. Your data stays where it is."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE "English"

; A running program cannot be replaced or removed: its file is locked. Says so, or, when silent,
; ends with exit code 2 and everything as it was.
!macro RefuseWhileRunning prefix
Function ${prefix}RefuseWhileRunning
  try_again:
  IfFileExists "$INSTDIR\velnor.exe" 0 free
  ClearErrors
  FileOpen $0 "$INSTDIR\velnor.exe" a
  IfErrors 0 close
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
      "${NAME} is running.$\nClose it, then choose Retry." /SD IDCANCEL IDRETRY try_again
  Abort "${NAME} is running."
  close:
  FileClose $0
  free:
FunctionEnd
!macroend
!insertmacro RefuseWhileRunning ""
!insertmacro RefuseWhileRunning "un."

Function .onInit
  ReadRegStr $DataFolder HKCU "${OWN_KEY}" "DataFolder"
  StrCmp $DataFolder "" 0 known
  StrCpy $DataFolder "$DOCUMENTS\Velnor"
  known:
FunctionEnd

; The program keeps its data in the folder it is started in.
Function StartProgram
  SetOutPath "$DataFolder"
  Exec '"$INSTDIR\velnor.exe"'
FunctionEnd

Section
  Call RefuseWhileRunning

  SetOutPath "$INSTDIR"
  File "/oname=velnor.exe" "${PROGRAM}"
  File "/oname=README.txt" "${GUIDE}"
  File "/oname=README.md" "${WHOLE_GUIDE}"
  WriteUninstaller "$INSTDIR\uninstall.exe"

  CreateDirectory "$DataFolder"
  SetOutPath "$DataFolder" ; a shortcut made now starts in this folder
  CreateShortcut "${SHORTCUT}" "$INSTDIR\velnor.exe" "" "$INSTDIR\velnor.exe" 0 SW_SHOWNORMAL "" \
      "Counts what you eat and what you burn"

  WriteRegStr HKCU "${OWN_KEY}" "ProgramFolder" "$INSTDIR"
  WriteRegStr HKCU "${OWN_KEY}" "DataFolder" "$DataFolder"

  ${GetSize} "$INSTDIR" "/M=velnor.exe /S=0K /G=0" $0 $1 $2
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\velnor.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Removes by name what the section above has made and nothing else. A folder that holds anything
; more stays: whatever a person put there is theirs.
Section un.
  Call un.RefuseWhileRunning

  Delete "${SHORTCUT}"
  Delete "$INSTDIR\velnor.exe"
  Delete "$INSTDIR\README.txt"
  Delete "$INSTDIR\README.md"
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP" ; a folder that somebody stands in cannot be removed
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${OWN_KEY}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}" ; last: its entry is there until everything is done
SectionEnd
