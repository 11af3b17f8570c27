; SPDX-FileCopyrightText: The Korvane developers
; SPDX-License-Identifier: MIT
;
; makensis -DVERSION=0.9.2 -DFOLDER=... -DFILES=... -DOUTPUT=... korvane.nsi, as package.sh does. FOLDER is what is
; installed, FILES the list of it that the uninstaller goes by: it removes what it brought and nothing else.
; Without questions: setup.exe /S [/D=C:\a folder, last and without quotes].
Unicode true
Target amd64-unicode
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WinVer.nsh

Name "Korvane"
OutFile "${OUTPUT}"
BrandingText "Korvane ${VERSION}"
InstallDir "$LOCALAPPDATA\Programs\Korvane"
InstallDirRegKey HKCU "Software\Korvane\Setup" "Folder"
; For one user: no administrator is asked.
RequestExecutionLevel user
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS all

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Korvane"
!define CLASSES "Software\Classes"

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Korvane"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Korvane Setup"
VIAddVersionKey CompanyName "The Korvane developers"
VIAddVersionKey LegalCopyright "The Korvane developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\korvane.exe"

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${FOLDER}/licences/Korvane.txt"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"

LangString PartProgram ${LANG_ENGLISH} "Korvane"
LangString PartProgram ${LANG_GERMAN} "Korvane"
LangString PartMenu ${LANG_ENGLISH} "Start menu"
LangString PartMenu ${LANG_GERMAN} "Startmenü"
LangString PartTypes ${LANG_ENGLISH} "Open models and animations with Korvane"
LangString PartTypes ${LANG_GERMAN} "Modelle und Animationen mit Korvane öffnen"
LangString AboutProgram ${LANG_ENGLISH} "The editor, its program for the command line and the licences."
LangString AboutProgram ${LANG_GERMAN} "Der Editor, sein Programm für die Befehlszeile und die Lizenzen."
LangString AboutMenu ${LANG_ENGLISH} "An entry in your start menu."
LangString AboutMenu ${LANG_GERMAN} "Ein Eintrag in Ihrem Startmenü."
LangString AboutTypes ${LANG_ENGLISH} "A double click on a .skinnedmesh, .staticmesh or .anim file opens it in Korvane, unless another program has the type."
LangString AboutTypes ${LANG_GERMAN} "Ein Doppelklick auf eine Datei .skinnedmesh, .staticmesh oder .anim öffnet sie in Korvane, sofern der Typ keinem anderen Programm gehört."
LangString TypeSkinnedMesh ${LANG_ENGLISH} "Skinned mesh"
LangString TypeSkinnedMesh ${LANG_GERMAN} "Skelettmodell"
LangString TypeAnim ${LANG_ENGLISH} "Skinned mesh animations"
LangString TypeAnim ${LANG_GERMAN} "Animationen eines Skelettmodells"
LangString TypeStaticMesh ${LANG_ENGLISH} "Static mesh"
LangString TypeStaticMesh ${LANG_GERMAN} "Statisches Modell"
LangString NeedsSystem ${LANG_ENGLISH} "Korvane needs Windows 7 or later, 64 bit."
LangString NeedsSystem ${LANG_GERMAN} "Korvane benötigt Windows 7 oder neuer mit 64 Bit."
LangString IsRunning ${LANG_ENGLISH} "Korvane is running from this folder. Close it, then try again."
LangString IsRunning ${LANG_GERMAN} "Korvane läuft aus diesem Ordner. Schließen Sie es und versuchen Sie es erneut."

; A program that runs cannot be opened for writing.
!macro WaitUntilClosed prefix
Function ${prefix}WaitUntilClosed
    ${DoWhile} ${FileExists} "$INSTDIR\korvane.exe"
        ClearErrors
        FileOpen $0 "$INSTDIR\korvane.exe" a
        ${IfNot} ${Errors}
            FileClose $0
            ${ExitDo}
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(IsRunning)" /SD IDCANCEL IDRETRY +3
        SetErrorLevel 2
        Abort
    ${Loop}
FunctionEnd
!macroend
!insertmacro WaitUntilClosed ""
!insertmacro WaitUntilClosed "un."

; A type that another program has stays that program's; Korvane is in the list of "Open with" all the same.
!macro FileType extension text
    WriteRegStr HKCU "${CLASSES}\Korvane.${extension}" "" "${text}"
    WriteRegStr HKCU "${CLASSES}\Korvane.${extension}\DefaultIcon" "" "$INSTDIR\korvane.exe,0"
    WriteRegStr HKCU "${CLASSES}\Korvane.${extension}\shell\open\command" "" '"$INSTDIR\korvane.exe" "%1"'
    WriteRegStr HKCU "${CLASSES}\.${extension}\OpenWithProgids" "Korvane.${extension}" ""
    ReadRegStr $0 HKCR ".${extension}" ""
    ${If} $0 == ""
        WriteRegStr HKCU "${CLASSES}\.${extension}" "" "Korvane.${extension}"
    ${EndIf}
!macroend
!macro NoFileType extension
    ReadRegStr $0 HKCU "${CLASSES}\.${extension}" ""
    ${If} $0 == "Korvane.${extension}"
        DeleteRegValue HKCU "${CLASSES}\.${extension}" ""
    ${EndIf}
    DeleteRegValue HKCU "${CLASSES}\.${extension}\OpenWithProgids" "Korvane.${extension}"
    DeleteRegKey /ifempty HKCU "${CLASSES}\.${extension}\OpenWithProgids"
    DeleteRegKey /ifempty HKCU "${CLASSES}\.${extension}"
    DeleteRegKey HKCU "${CLASSES}\Korvane.${extension}"
!macroend

Function .onInit
    ${IfNot} ${AtLeastWin7}
        MessageBox MB_OK|MB_ICONSTOP "$(NeedsSystem)" /SD IDOK
        SetErrorLevel 2
        Abort
    ${EndIf}
FunctionEnd

Section "$(PartProgram)" Program
    SectionIn RO
    Call WaitUntilClosed
    ; What an older version brought and this one does not have would stay for ever.
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
    ${EndIf}
    SetOutPath "$INSTDIR"
    File /r "${FOLDER}/*.*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr HKCU "Software\Korvane\Setup" "Folder" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Korvane"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Korvane developers"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\korvane.exe"
    WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

Section "$(PartMenu)" Menu
    CreateShortcut "$SMPROGRAMS\Korvane.lnk" "$INSTDIR\korvane.exe"
SectionEnd

Section "$(PartTypes)" Types
    !insertmacro FileType skinnedmesh "$(TypeSkinnedMesh)"
    !insertmacro FileType anim "$(TypeAnim)"
    !insertmacro FileType staticmesh "$(TypeStaticMesh)"
    ${RefreshShellIcons}
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${Program} "$(AboutProgram)"
    !insertmacro MUI_DESCRIPTION_TEXT ${Menu} "$(AboutMenu)"
    !insertmacro MUI_DESCRIPTION_TEXT ${Types} "$(AboutTypes)"
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Settings and unsaved work are the user's: they stay.
Section Uninstall
    Call un.WaitUntilClosed
    !include "${FILES}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Korvane.lnk"
    !insertmacro NoFileType skinnedmesh
    !insertmacro NoFileType anim
    !insertmacro NoFileType staticmesh
    ${RefreshShellIcons}
    DeleteRegKey HKCU "${UNINSTALL}"
    DeleteRegKey HKCU "Software\Korvane\Setup"
    DeleteRegKey /ifempty HKCU "Software\Korvane"
SectionEnd
