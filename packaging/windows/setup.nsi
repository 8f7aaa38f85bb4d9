; The setup for one user, who needs no administrator. setup.sh names VERSION, QUELLE (the tree to
; install), ZIEL, and LISTEN (what to copy, what to delete).
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
; A file that can't be written ends the setup, instead of being left out.
AllowSkipFiles off
Name "Tarvelin"
OutFile "${ZIEL}"
InstallDir "$LOCALAPPDATA\Programs\Tarvelin"
BrandingText "Tarvelin ${VERSION}"
ManifestDPIAware true

!define EINTRAG "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarvelin"
!define KLASSEN "Software\Classes"
!define PLANTYP "Tarvelin.Plan"
!define VORHER "Tarvelin.Vorher"

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WinVer.nsh

!define MUI_ICON "${QUELLE}\share\tarvelin\img\icon.ico"
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

; Setup and removal need the same of them.
!macro Beenden un
; Tells each window of Tarvelin to close, as its own button does: it keeps its plan then.
Function ${un}SageBescheid
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

; $4 is 1 while one of the programs runs, else 0: nobody can delete its lock or write it then. A test of
; the error flag clears it.
Function ${un}PruefeObEsLaeuft
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

Function ${un}BeendeTarvelin
    Call ${un}PruefeObEsLaeuft
    ${If} $4 == 1
        Call ${un}SageBescheid
    ${EndIf}
    StrCpy $3 0
    ${Do}
        Call ${un}PruefeObEsLaeuft
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
            Call ${un}SageBescheid
        ${EndIf}
    ${Loop}
FunctionEnd
!macroend
!insertmacro Beenden ""
!insertmacro Beenden "un."

; The toolkit starts on nothing older.
Function .onInit
    ${IfNot} ${AtLeastWin10}
        MessageBox MB_OK|MB_ICONSTOP "Tarvelin braucht Windows 10 oder neuer." /SD IDOK
        SetErrorLevel 3
        Quit
    ${EndIf}
FunctionEnd

; Double clicks, and the icon of plans.
!macro MeldeTypen
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section
    Call BeendeTarvelin
    ; An older version takes its own files with it. What it leaves gives way to the new one's.
    ${If} ${FileExists} "$INSTDIR\Entfernen.exe"
        ExecWait '"$INSTDIR\Entfernen.exe" /S _?=$INSTDIR'
    ${EndIf}
    SetOverwrite on
    !include "${LISTEN}\kopieren.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\Entfernen.exe"
    CreateShortcut "$SMPROGRAMS\Tarvelin.lnk" "$INSTDIR\bin\tarvelin.exe"

    ReadRegStr $0 HKCU "${KLASSEN}\.tvf" ""
    ${If} $0 != ""
    ${AndIf} $0 != "${PLANTYP}"
        WriteRegStr HKCU "${KLASSEN}\.tvf" "${VORHER}" $0
    ${EndIf}
    WriteRegStr HKCU "${KLASSEN}\.tvf" "" "${PLANTYP}"
    WriteRegStr HKCU "${KLASSEN}\${PLANTYP}" "" "Tarvelin-Bauliste"
    WriteRegStr HKCU "${KLASSEN}\${PLANTYP}\DefaultIcon" "" "$INSTDIR\bin\tarvelin.exe,0"
    WriteRegStr HKCU "${KLASSEN}\${PLANTYP}\shell\open\command" "" '"$INSTDIR\bin\tarvelin.exe" "%1"'
    !insertmacro MeldeTypen

    WriteRegStr HKCU "${EINTRAG}" "DisplayName" "Tarvelin"
    WriteRegStr HKCU "${EINTRAG}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${EINTRAG}" "DisplayIcon" "$INSTDIR\bin\tarvelin.exe,0"
    WriteRegStr HKCU "${EINTRAG}" "Publisher" "Tarvelin maintainers"
    WriteRegStr HKCU "${EINTRAG}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${EINTRAG}" "UninstallString" '"$INSTDIR\Entfernen.exe"'
    WriteRegStr HKCU "${EINTRAG}" "QuietUninstallString" '"$INSTDIR\Entfernen.exe" /S'
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${EINTRAG}" "EstimatedSize" $0
    WriteRegDWORD HKCU "${EINTRAG}" "NoModify" 1
    WriteRegDWORD HKCU "${EINTRAG}" "NoRepair" 1
SectionEnd

; Only what the setup brought goes: plans lie elsewhere, and what somebody put beside it stays.
Section Uninstall
    Call un.BeendeTarvelin
    !include "${LISTEN}\loeschen.nsh"
    Delete "$INSTDIR\Entfernen.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Tarvelin.lnk"
    ; Whoever opened plans before does so again.
    ReadRegStr $0 HKCU "${KLASSEN}\.tvf" ""
    ${If} $0 == "${PLANTYP}"
        DeleteRegValue HKCU "${KLASSEN}\.tvf" ""
        ReadRegStr $0 HKCU "${KLASSEN}\.tvf" "${VORHER}"
        ${If} $0 != ""
            WriteRegStr HKCU "${KLASSEN}\.tvf" "" $0
        ${EndIf}
    ${EndIf}
    DeleteRegValue HKCU "${KLASSEN}\.tvf" "${VORHER}"
    ; "ifempty" asks for keys alone.
    EnumRegValue $0 HKCU "${KLASSEN}\.tvf" 0
    ReadRegStr $1 HKCU "${KLASSEN}\.tvf" ""
    ${If} $0$1 == ""
        DeleteRegKey /ifempty HKCU "${KLASSEN}\.tvf"
    ${EndIf}
    DeleteRegKey HKCU "${KLASSEN}\${PLANTYP}"
    !insertmacro MeldeTypen
    DeleteRegKey HKCU "${EINTRAG}"
SectionEnd
