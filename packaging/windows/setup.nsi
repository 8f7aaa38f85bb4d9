; The setup for one user, without an administrator. setup.sh defines VERSION, SOURCE (the tree to
; install), TARGET, and LISTS (the folder of copy.nsh and delete.nsh).
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
; A file that can't be written ends the setup instead of being skipped.
AllowSkipFiles off
Name "Tarvelin"
OutFile "${TARGET}"
InstallDir "$LOCALAPPDATA\Programs\Tarvelin"
BrandingText "Tarvelin ${VERSION}"
ManifestDPIAware true

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarvelin"
!define CLASSES "Software\Classes"
!define PLAN_TYPE "Tarvelin.Plan"
; The value in which the type of plans that another program had registered is kept.
!define PREVIOUS_TYPE "Tarvelin.Vorher"

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WinVer.nsh

!define MUI_ICON "${SOURCE}\share\tarvelin\img\icon.ico"
!define MUI_UNICON "${MUI_ICON}"
!define MUI_ABORTWARNING
!define MUI_WELCOMEPAGE_TEXT "Tarvelin ${VERSION} wird für dich installiert, nach$\r$\n$INSTDIR$\r$\n$\r$\nDeine Baulisten und Einstellungen liegen in$\r$\n$APPDATA\Tarvelin$\r$\nund bleiben, wie sie sind, auch wenn du Tarvelin später entfernst."
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\tarvelin.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "German"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1031 ProductName "Tarvelin"
VIAddVersionKey /LANG=1031 ProductVersion "${VERSION}"
VIAddVersionKey /LANG=1031 FileVersion "${VERSION}"
VIAddVersionKey /LANG=1031 FileDescription "Tarvelin (Installation)"
VIAddVersionKey /LANG=1031 CompanyName "Tarvelin maintainers"
VIAddVersionKey /LANG=1031 LegalCopyright "2026 Tarvelin maintainers"

; Once for the setup, once for the removal, which needs functions of its own.
!macro ClosingFunctions un
; Tells each window of Tarvelin to close, as its close button does, so that it keeps its plan.
Function ${un}AskToClose
    StrCpy $0 0
    ${Do}
        FindWindow $0 "" "" 0 $0
        ${If} $0 == 0
            ${ExitDo}
        ${EndIf}
        System::Call 'user32::GetClassNameW(p r0, w .r1, i 64)'
        StrCpy $1 $1 2
        System::Call 'user32::GetWindowTextW(p r0, w .r2, i 64)'
        StrCpy $2 $2 11
        ${If} $1 == "Qt"
        ${AndIf} $2 == "Tarvelin  |"
            System::Call 'user32::PostMessageW(p r0, i 0x10, p 0, p 0)'
        ${EndIf}
    ${Loop}
FunctionEnd

; Sets $4 to 1 while one of the programs runs, else to 0: then its lock can't be deleted or its file
; written. Reading the error flag clears it.
Function ${un}CheckRunning
    StrCpy $4 0
    ClearErrors
    Delete "$APPDATA\Tarvelin\tarvelin.lock"
    ${If} ${Errors}
        StrCpy $4 1
    ${EndIf}
    ${For} $1 1 2
        StrCpy $2 "$INSTDIR\bin\tarvelin.exe"
        ${If} $1 == 2
            StrCpy $2 "$INSTDIR\bin\tarvelin-cli.exe"
        ${EndIf}
        ${If} ${FileExists} $2
            FileOpen $0 $2 a
            ${If} ${Errors}
                StrCpy $4 1
            ${Else}
                FileClose $0
            ${EndIf}
        ${EndIf}
    ${Next}
FunctionEnd

Function ${un}CloseTarvelin
    Call ${un}CheckRunning
    ${If} $4 == 1
        Call ${un}AskToClose
    ${EndIf}
    StrCpy $3 0
    ${Do}
        Call ${un}CheckRunning
        ${If} $4 == 0
            ${ExitDo}
        ${EndIf}
        Sleep 250
        IntOp $3 $3 + 1
        ${If} $3 == 60
            StrCpy $3 0
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Tarvelin läuft noch. Bitte beende es, dann geht es weiter." /SD IDCANCEL IDRETRY +3
            SetErrorLevel 2
            Quit
            Call ${un}AskToClose
        ${EndIf}
    ${Loop}
FunctionEnd
!macroend
!insertmacro ClosingFunctions ""
!insertmacro ClosingFunctions "un."

; The toolkit needs at least this.
Function .onInit
    ${IfNot} ${AtLeastWin10}
        MessageBox MB_OK|MB_ICONSTOP "Tarvelin braucht Windows 10 oder neuer." /SD IDOK
        SetErrorLevel 3
        Quit
    ${EndIf}
FunctionEnd

; Tells the desktop that file types and icons have changed.
!macro AnnounceTypes
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section
    Call CloseTarvelin
    ; An older version removes its own files. What it leaves is overwritten.
    ${If} ${FileExists} "$INSTDIR\Entfernen.exe"
        ExecWait '"$INSTDIR\Entfernen.exe" /S _?=$INSTDIR'
    ${EndIf}
    SetOverwrite on
    !include "${LISTS}\copy.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\Entfernen.exe"
    CreateShortcut "$SMPROGRAMS\Tarvelin.lnk" "$INSTDIR\bin\tarvelin.exe"

    ReadRegStr $0 HKCU "${CLASSES}\.tvf" ""
    ${If} $0 != ""
    ${AndIf} $0 != "${PLAN_TYPE}"
        WriteRegStr HKCU "${CLASSES}\.tvf" "${PREVIOUS_TYPE}" $0
    ${EndIf}
    WriteRegStr HKCU "${CLASSES}\.tvf" "" "${PLAN_TYPE}"
    WriteRegStr HKCU "${CLASSES}\${PLAN_TYPE}" "" "Tarvelin-Bauliste"
    WriteRegStr HKCU "${CLASSES}\${PLAN_TYPE}\DefaultIcon" "" "$INSTDIR\bin\tarvelin.exe,0"
    WriteRegStr HKCU "${CLASSES}\${PLAN_TYPE}\shell\open\command" "" '"$INSTDIR\bin\tarvelin.exe" "%1"'
    !insertmacro AnnounceTypes

    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Tarvelin"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\bin\tarvelin.exe,0"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "Tarvelin maintainers"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Entfernen.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Entfernen.exe" /S'
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Removes only what the setup has installed: plans are elsewhere, and files of others stay.
Section Uninstall
    Call un.CloseTarvelin
    !include "${LISTS}\delete.nsh"
    Delete "$INSTDIR\Entfernen.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Tarvelin.lnk"
    ; The program that opened plans before does so again.
    ReadRegStr $0 HKCU "${CLASSES}\.tvf" ""
    ${If} $0 == "${PLAN_TYPE}"
        DeleteRegValue HKCU "${CLASSES}\.tvf" ""
        ReadRegStr $0 HKCU "${CLASSES}\.tvf" "${PREVIOUS_TYPE}"
        ${If} $0 != ""
            WriteRegStr HKCU "${CLASSES}\.tvf" "" $0
        ${EndIf}
    ${EndIf}
    DeleteRegValue HKCU "${CLASSES}\.tvf" "${PREVIOUS_TYPE}"
    ; "/ifempty" looks at keys alone, so values are checked first.
    EnumRegValue $0 HKCU "${CLASSES}\.tvf" 0
    ReadRegStr $1 HKCU "${CLASSES}\.tvf" ""
    ${If} $0$1 == ""
        DeleteRegKey /ifempty HKCU "${CLASSES}\.tvf"
    ${EndIf}
    DeleteRegKey HKCU "${CLASSES}\${PLAN_TYPE}"
    !insertmacro AnnounceTypes
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
