; The installer for Windows: per user, without administrator rights. bouw.sh gives VERSIE, PICTOGRAM
; (the program's icon), UIT (the installer to be made) and LIJSTEN (the folder with bestanden.nsh and
; verwijder.nsh, which name every file that is packed).
Unicode true
Target amd64-unicode
ManifestSupportedOS Win10
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh

!define NAAM "Lauwerkrans"
!define SLEUTEL "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAAM}"
!define TITEL "Bereken de Club- cq Lijnkampioenen van een parencompetitie."

Name "${NAAM}"
OutFile "${UIT}"
BrandingText "${NAAM} ${VERSIE}"
; The folder of the suite; the program goes into its sub-folder. An upgrade finds it again.
InstallDir ""
InstallDirRegKey HKCU "${SLEUTEL}" "Suitemap"
VIProductVersion "${VERSIE}.0"
VIAddVersionKey /LANG=1043 ProductName "${NAAM}"
VIAddVersionKey /LANG=1043 ProductVersion "${VERSIE}"
VIAddVersionKey /LANG=1043 FileVersion "${VERSIE}"
VIAddVersionKey /LANG=1043 FileDescription "${NAAM} installeren"
VIAddVersionKey /LANG=1043 LegalCopyright ""

!define MUI_ICON "${PICTOGRAM}"
!define MUI_UNICON "${PICTOGRAM}"
!define MUI_ABORTWARNING
!define MUI_DIRECTORYPAGE_TEXT_TOP "Kies de hoofdmap van uw clubadministratie: de map waarin het bestand Mappen.ini staat. ${NAAM} komt daarin in een eigen map ${NAAM}."
!define MUI_DIRECTORYPAGE_TEXT_DESTINATION "Hoofdmap van de clubadministratie"
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE ControleerMap
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION StartProgramma
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE Dutch

; Asks a running copy in MAP to close: its window gets the message that the user's own click on the
; close button would give. While a program runs, its file cannot be opened for writing.
!macro SluitProgramma un
Function ${un}SluitProgramma
  IfFileExists "$R9\${NAAM}.exe" 0 gesloten
  StrCpy $R0 0
  opnieuw:
  ClearErrors
  FileOpen $R1 "$R9\${NAAM}.exe" a
  IfErrors loopt
  FileClose $R1
  Goto gesloten
  loopt:
  FindWindow $R2 "" "${TITEL}"
  IntCmp $R2 0 wacht
  SendMessage $R2 ${WM_CLOSE} 0 0 /TIMEOUT=2000
  wacht:
  Sleep 500
  IntOp $R0 $R0 + 1
  IntCmp $R0 10 vraag opnieuw vraag
  vraag:
  StrCpy $R0 0
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NAAM} is nog gestart. Sluit het programma en probeer het opnieuw." /SD IDCANCEL IDRETRY opnieuw
  SetErrorLevel 3
  Quit
  gesloten:
FunctionEnd
!macroend
!insertmacro SluitProgramma ""
!insertmacro SluitProgramma "un."

; Whether the user can write in $INSTDIR; $R0 is 1 or 0.
Function KanSchrijven
  StrCpy $R0 0
  ClearErrors
  CreateDirectory "$INSTDIR\${NAAM}"
  FileOpen $R1 "$INSTDIR\${NAAM}\schrijfproef.tmp" w
  IfErrors klaar
  FileClose $R1
  Delete "$INSTDIR\${NAAM}\schrijfproef.tmp"
  StrCpy $R0 1
  klaar:
  RMDir "$INSTDIR\${NAAM}" ; only when it is empty
FunctionEnd

Function ControleerMap
  IfFileExists "$INSTDIR\Mappen.ini" heeft
  MessageBox MB_YESNO|MB_ICONEXCLAMATION|MB_DEFBUTTON2 "In de map $INSTDIR staat geen bestand Mappen.ini. Het programma kan daar niet starten. Toch hier installeren?" /SD IDYES IDYES heeft
  Abort
  heeft:
  Call KanSchrijven
  IntCmp $R0 1 kan
  MessageBox MB_OK|MB_ICONEXCLAMATION "In de map $INSTDIR kunt u niet schrijven. Kies een andere map of vraag de beheerder van deze computer om toegang." /SD IDOK
  Abort
  kan:
FunctionEnd

; Without windows nobody answers: a folder that cannot be used ends the installation with status 2.
Function .onInit
  IfSilent 0 klaar
  StrCmp $INSTDIR "" weg
  CreateDirectory "$INSTDIR"
  Call KanSchrijven
  IntCmp $R0 1 klaar
  weg:
  SetErrorLevel 2
  Quit
  klaar:
FunctionEnd

Function StartProgramma
  SetOutPath "$INSTDIR\${NAAM}"
  Exec '"$INSTDIR\${NAAM}\${NAAM}.exe"'
FunctionEnd

Section "${NAAM}"
  StrCpy $R9 "$INSTDIR\${NAAM}"
  Call SluitProgramma
  !include "${LIJSTEN}/bestanden.nsh"
  SetOutPath "$INSTDIR\${NAAM}"
  WriteUninstaller "$INSTDIR\${NAAM}\verwijderen.exe"
  CreateShortcut "$SMPROGRAMS\${NAAM}.lnk" "$INSTDIR\${NAAM}\${NAAM}.exe"
  CreateShortcut "$SMPROGRAMS\${NAAM} handleiding.lnk" "$INSTDIR\${NAAM}\handleiding\index.html"
  WriteRegStr HKCU "${SLEUTEL}" "DisplayName" "${NAAM}"
  WriteRegStr HKCU "${SLEUTEL}" "DisplayVersion" "${VERSIE}"
  WriteRegStr HKCU "${SLEUTEL}" "DisplayIcon" "$INSTDIR\${NAAM}\${NAAM}.exe"
  WriteRegStr HKCU "${SLEUTEL}" "Publisher" "${NAAM}"
  WriteRegStr HKCU "${SLEUTEL}" "InstallLocation" "$INSTDIR\${NAAM}"
  WriteRegStr HKCU "${SLEUTEL}" "Suitemap" "$INSTDIR"
  WriteRegStr HKCU "${SLEUTEL}" "UninstallString" '"$INSTDIR\${NAAM}\verwijderen.exe"'
  WriteRegStr HKCU "${SLEUTEL}" "QuietUninstallString" '"$INSTDIR\${NAAM}\verwijderen.exe" /S'
  WriteRegDWORD HKCU "${SLEUTEL}" "NoModify" 1
  WriteRegDWORD HKCU "${SLEUTEL}" "NoRepair" 1
  ${GetSize} "$INSTDIR\${NAAM}" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${SLEUTEL}" "EstimatedSize" $0
SectionEnd

Section "un.${NAAM}" un_programma
  SectionIn RO
  StrCpy $R9 "$INSTDIR"
  Call un.SluitProgramma
  !include "${LIJSTEN}/verwijder.nsh"
  Delete "$INSTDIR\verwijderen.exe"
  Delete "$SMPROGRAMS\${NAAM}.lnk"
  Delete "$SMPROGRAMS\${NAAM} handleiding.lnk"
  DeleteRegKey HKCU "${SLEUTEL}"
SectionEnd

Section /o "un.Instellingen en lijsten" un_eigen
  Delete "$INSTDIR\Lauwr.ini"
  Delete "$INSTDIR\${NAAM}\Lauwr_*.CSV"
  Delete "$INSTDIR\${NAAM}\Lauwr_*.HTML"
  RMDir "$INSTDIR\${NAAM}"
SectionEnd

; Last of all: the folder itself, when nothing is left in it.
Section "-un.map"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
SectionEnd

!insertmacro MUI_UNFUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${un_programma} "Het programma, met de snelkoppeling in het startmenu."
  !insertmacro MUI_DESCRIPTION_TEXT ${un_eigen} "Ook de instellingen (Lauwr.ini) en de bewaarde lijsten. Zonder vinkje blijven die staan."
!insertmacro MUI_UNFUNCTION_DESCRIPTION_END
