; The installer for Windows, made by makensis on Debian (scripts/windows.sh). Given to it:
;   VERSION   the version
;   STAGE     the program folder that is installed
;   FILES     a script with a Delete for each file of it and a RMDir for each folder: what the uninstaller removes
;   ICON      the program's icon
;   OUTPUT    the installer's name
;
; It installs for the user who starts it, or with /AllUsers for all users of the machine. Lists never lie where it
; installs: each user has a folder of his own, %LOCALAPPDATA%\tarnwick, which neither it nor the uninstaller touches.
;   tarnwick-VERSION-windows-x86_64-setup.exe /S              without any question
;   tarnwick-VERSION-windows-x86_64-setup.exe /S /AllUsers    the same for all users, run by an administrator
;   ... /D=C:\folder                                           there; as the last, and without quotes
; Exit status: 0 done, 1 cancelled, 2 not done.
; Like the program for 64 bit alone; so it runs where nothing of 32 bit is, as under Wine without it.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off
Name "Tarnwick"
OutFile "${OUTPUT}"
BrandingText "Tarnwick ${VERSION}"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwick"
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "Tarnwick"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_FUNCTION chooseFolder
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tarnwick.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${STAGE}/LICENSE.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"

LangString inUse ${LANG_ENGLISH} "Tarnwick is running. Close its window, end tarnwickctl, and start this again."
LangString inUse ${LANG_GERMAN} "Tarnwick läuft gerade. Schließen Sie das Fenster, beenden Sie tarnwickctl und starten Sie dies noch einmal."
LangString hasList ${LANG_ENGLISH} "In $INSTDIR lies a list of sites: an unpacked archive that is used there. Choose another folder; the list can be copied to %LOCALAPPDATA%\tarnwick."
LangString hasList ${LANG_GERMAN} "In $INSTDIR liegt eine Liste von Seiten: ein ausgepacktes Archiv, das dort benutzt wird. Wählen Sie einen anderen Ordner; die Liste kann nach %LOCALAPPDATA%\tarnwick kopiert werden."
LangString listsStay ${LANG_ENGLISH} "Your list of sites stays in %LOCALAPPDATA%\tarnwick."
LangString listsStay ${LANG_GERMAN} "Ihre Liste von Seiten bleibt in %LOCALAPPDATA%\tarnwick."

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductName" "Tarnwick"
VIAddVersionKey /LANG=${LANG_ENGLISH} "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=${LANG_ENGLISH} "FileDescription" "Installs Tarnwick"
VIAddVersionKey /LANG=${LANG_ENGLISH} "LegalCopyright" "The Tarnwick developers"

Var named

; %LOCALAPPDATA%\Tarnwick, which would be the usual one for a user alone, is where his list lies.
Function chooseFolder
  ${If} $MultiUser.InstallMode == "CurrentUser"
    ReadRegStr $0 HKCU "${UNINSTALL}" "InstallLocation"
    ${If} $0 == ""
      StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Tarnwick"
    ${EndIf}
  ${EndIf}
  ; One that is named by /D= counts.
  ${If} $named != ""
    StrCpy $INSTDIR $named
  ${EndIf}
FunctionEnd

!macro refuse text
  MessageBox MB_OK|MB_ICONSTOP "${text}" /SD IDOK
  SetErrorLevel 2
  Quit
!macroend

; A program that runs cannot be opened for writing.
!macro refuseWhileRunning un
Function ${un}refuseWhileRunning
  ${If} ${FileExists} "$INSTDIR\$0"
    ClearErrors
    FileOpen $1 "$INSTDIR\$0" a
    ${If} ${Errors}
      !insertmacro refuse "$(inUse)"
    ${EndIf}
    FileClose $1
  ${EndIf}
FunctionEnd
!macroend
!insertmacro refuseWhileRunning ""
!insertmacro refuseWhileRunning "un."

Function .onInit
  StrCpy $named $INSTDIR
  SetRegView 64
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  SetRegView 64
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section "Tarnwick"
  ${If} ${FileExists} "$INSTDIR\tarnwick.mdb"
    !insertmacro refuse "$(hasList)"
  ${EndIf}
  StrCpy $0 "tarnwick.exe"
  Call refuseWhileRunning
  StrCpy $0 "tarnwickctl.exe"
  Call refuseWhileRunning
  ; The version before takes away what it has brought.
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode _?=$INSTDIR'
  ${EndIf}
  SetOutPath "$INSTDIR"
  File /r "${STAGE}/*.*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Tarnwick.lnk" "$INSTDIR\tarnwick.exe"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayName" "Tarnwick"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL}" "Publisher" "The Tarnwick developers"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayIcon" "$INSTDIR\tarnwick.exe"
  WriteRegStr SHCTX "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

Section "Uninstall"
  StrCpy $0 "tarnwick.exe"
  Call un.refuseWhileRunning
  StrCpy $0 "tarnwickctl.exe"
  Call un.refuseWhileRunning
  DetailPrint "$(listsStay)"
  Delete "$SMPROGRAMS\Tarnwick.lnk"
  Delete "$INSTDIR\uninstall.exe"
  !include "${FILES}"
  RMDir "$INSTDIR"
  DeleteRegKey SHCTX "${UNINSTALL}"
SectionEnd
