; Installer for one user, without administrator rights. The game keeps settings
; and topics in its own folder, which is why it goes where the user may write.
; build.sh defines VERSION, STAGE (what to install), OUTPUT and REMOVALS, the
; list of what the uninstaller takes away.

Unicode true
Target amd64-unicode
ManifestDPIAware true
SetCompressor /SOLID lzma
RequestExecutionLevel user
Name "Quillor"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Quillor"
InstallDirRegKey HKCU "Software\Quillor" "Folder"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Quillor"
VIAddVersionKey "CompanyName" "Quillor developers"
VIAddVersionKey "FileDescription" "Quillor Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "Quillor developers, MIT licence"

!include "MUI2.nsh"
!include "FileFunc.nsh"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillor"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\Quillor.exe"
!define MUI_LANGDLL_REGISTRY_ROOT HKCU
!define MUI_LANGDLL_REGISTRY_KEY "Software\Quillor"
!define MUI_LANGDLL_REGISTRY_VALUENAME "Language"

!insertmacro MUI_PAGE_LICENSE "${STAGE}/licences/Quillor.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The first is used where the system's language is neither of the two.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_RESERVEFILE_LANGDLL

LangString CloseGame ${LANG_ENGLISH} "Quillor is running. Close it, then try again."
LangString CloseGame ${LANG_SPANISH} "Quillor está abierto. Ciérralo y vuelve a intentarlo."

; Asks for the language, the system's at first. /LANG=1033 or 1034 says it beforehand.
Function .onInit
    ${GetParameters} $0
    ${GetOptions} $0 "/LANG=" $1
    IfErrors ask
    StrCpy $LANGUAGE $1
    Return
ask:
    !insertmacro MUI_LANGDLL_DISPLAY
FunctionEnd

Function un.onInit
    !insertmacro MUI_UNGETLANGUAGE
FunctionEnd

; A program that runs cannot be replaced. Nobody sees a question of a silent installer:
; it ends with 2.
!macro waitForGame
again:
    IfFileExists "$INSTDIR\Quillor.exe" 0 ready
    ClearErrors
    FileOpen $0 "$INSTDIR\Quillor.exe" a
    IfErrors running
    FileClose $0
    Goto ready
running:
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(CloseGame)" /SD IDCANCEL IDRETRY again
    SetErrorLevel 2
    Quit
ready:
!macroend

; The marker file makes the game speak English. Only a first installation sets it:
; whoever put it there or removed it afterwards knows why.
Function chooseLanguage
    IfFileExists "$INSTDIR\Quillor.exe" done
    IfFileExists "$INSTDIR\Quillor-Config.ini" done
    StrCmp $LANGUAGE ${LANG_SPANISH} done
    FileOpen $0 "$INSTDIR\English.txt" w
    FileClose $0
done:
FunctionEnd

Section
    SetShellVarContext current
    SetOutPath "$INSTDIR"
    !insertmacro waitForGame
    Call chooseLanguage
    File /r "${STAGE}/*"
    WriteUninstaller "$INSTDIR\Uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Quillor.lnk" "$INSTDIR\Quillor.exe"

    WriteRegStr HKCU "Software\Quillor" "Folder" "$INSTDIR"
    WriteRegStr HKCU "Software\Quillor" "Language" "$LANGUAGE"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Quillor"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Quillor developers"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Quillor.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

; Takes away what was installed and nothing else: the player's topics, settings,
; colours and picture stay, and so does the folder as long as any of them is there.
Section "Uninstall"
    SetShellVarContext current
    !insertmacro waitForGame
    Delete "$SMPROGRAMS\Quillor.lnk"
    !include "${REMOVALS}"
    Delete "$INSTDIR\Uninstall.exe"
    IfFileExists "$INSTDIR\Quillor-Config.ini" kept
    IfFileExists "$INSTDIR\Temas\*.*" kept
    IfFileExists "$INSTDIR\Topics\*.*" kept
    Delete "$INSTDIR\English.txt"  ; never played: nothing of the player's
kept:
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    DeleteRegKey HKCU "Software\Quillor"
SectionEnd
