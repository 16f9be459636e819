; SPDX-License-Identifier: MIT
; The installer for Windows. packaging/windows/package compiles it and gives it VERSION, STAGE (the folder of the files),
; LISTS (files.nsh and folders.nsh, which name each of them), ICON, KIBIBYTES and SETUP, the file to make.
;
; It installs for the current user and removes only what it installed, by name: files that a person put into the folder,
; such as the control's error texts in "language", outlive an update and an uninstall. installed-files.txt names the
; files of the installed version for the next one.
;
; Exit status, for silent installations: 0 done, 1 cancelled, 2 failed, 3 the program runs, 4 the folder cannot be used.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS Win10
AllowSkipFiles off
ShowInstDetails nevershow
ShowUninstDetails nevershow

!include MUI2.nsh
!include LogicLib.nsh
!include Sections.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Qorvix"
!define CLASSES "Software\Classes"
!define PROGRAM_KEY "${CLASSES}\Applications\qorvix.exe"
!define LIST "installed-files.txt"
!define LIST_TITLE "Files of Qorvix"
!define UNINSTALLER "uninstall.exe"
!define FRESH "$INSTDIR\Qorvix-${VERSION}-new" ; here all files are written before one is replaced
!define FILE_ICON "$INSTDIR\qorvix.exe,1"
!define STATUS_FAILED 2
!define STATUS_RUNNING 3
!define STATUS_FOLDER 4

Name "Qorvix"
OutFile "${SETUP}"
InstallDir "$LOCALAPPDATA\Programs\Qorvix"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Qorvix ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 "ProductName" "Qorvix"
VIAddVersionKey /LANG=0 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "FileDescription" "Qorvix ${VERSION} Setup"
VIAddVersionKey /LANG=0 "CompanyName" "The Qorvix developers"
VIAddVersionKey /LANG=0 "LegalCopyright" "The Qorvix developers, MIT licence"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_WELCOMEPAGE_TEXT "$(welcome)"
!define MUI_FINISHPAGE_RUN "$INSTDIR\qorvix.exe"
!define MUI_FINISHPAGE_NOREBOOTSUPPORT
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!define MUI_UNCONFIRMPAGE_TEXT_TOP "$(farewell)"
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The first language is that of systems in neither.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!macro Text NAME ENGLISH GERMAN
    LangString ${NAME} ${LANG_ENGLISH} "${ENGLISH}"
    LangString ${NAME} ${LANG_GERMAN} "${GERMAN}"
!macroend
!insertmacro Text welcome \
    "This installs Qorvix ${VERSION} for you alone. No administrator rights are needed.$\r$\n$\r$\nA version that is installed already is replaced. Your settings, your comments and error texts that you added stay.$\r$\n$\r$\n$_CLICK" \
    "Qorvix ${VERSION} wird nur für Sie installiert. Administratorrechte sind nicht nötig.$\r$\n$\r$\nEine schon installierte Version wird ersetzt. Ihre Einstellungen, Ihre Kommentare und hinzugefügte Fehlertexte bleiben.$\r$\n$\r$\n$_CLICK"
!insertmacro Text farewell \
    "Qorvix will be removed from this folder. Your settings, your comments and files that you added to the folder stay." \
    "Qorvix wird aus diesem Ordner entfernt. Ihre Einstellungen, Ihre Kommentare und Dateien, die Sie dem Ordner hinzugefügt haben, bleiben."
!insertmacro Text partProgram "Qorvix" "Qorvix"
!insertmacro Text partStartMenu "Entry in the start menu" "Eintrag im Startmenü"
!insertmacro Text partDesktop "Icon on the desktop" "Symbol auf dem Desktop"
!insertmacro Text partFiles "Open files with Qorvix" "Dateien mit Qorvix öffnen"
!insertmacro Text aboutProgram "The program, the command-line tool and the help." \
    "Das Programm, das Kommandozeilenwerkzeug und die Hilfe."
!insertmacro Text aboutStartMenu "Qorvix in the start menu." "Qorvix im Startmenü."
!insertmacro Text aboutDesktop "Qorvix on the desktop." "Qorvix auf dem Desktop."
!insertmacro Text aboutFiles \
    "A double click opens *.qorvix. *.log, *.a and *.zip have $\"Open with$\"." \
    "Ein Doppelklick öffnet *.qorvix. Für *.log, *.a und *.zip gilt $\"Öffnen mit$\"."
!insertmacro Text archive "Qorvix archive" "Qorvix-Archiv"
!insertmacro Text logbook "Event logbook" "Ereignislogbuch"
!insertmacro Text about "Viewer for the event logbook of a ZEK machine-tool control" \
    "Anzeige des Ereignislogbuchs einer ZEK-Werkzeugmaschinensteuerung"
!insertmacro Text isRunning "Qorvix is running:$\r$\n$R1$\r$\n$\r$\nClose it, then choose Retry." \
    "Qorvix läuft:$\r$\n$R1$\r$\n$\r$\nBeenden Sie es und wählen Sie dann Wiederholen."
!insertmacro Text isForeign \
    "This file is there already, and no installation of Qorvix put it there:$\r$\n$R1$\r$\n$\r$\nPlease choose another folder. Nothing was changed." \
    "Diese Datei ist schon da und stammt nicht von einer Installation von Qorvix:$\r$\n$R1$\r$\n$\r$\nBitte wählen Sie einen anderen Ordner. Nichts wurde geändert."
!insertmacro Text isClosed \
    "Files cannot be written in this folder:$\r$\n$INSTDIR$\r$\n$\r$\nPlease choose another folder. Nothing was changed." \
    "In diesen Ordner können keine Dateien geschrieben werden:$\r$\n$INSTDIR$\r$\n$\r$\nBitte wählen Sie einen anderen Ordner. Nichts wurde geändert."
!insertmacro Text isStuck "This file cannot be replaced:$\r$\n$R1" "Diese Datei kann nicht ersetzt werden:$\r$\n$R1"
!insertmacro Text isLeft "This file could not be removed:$\r$\n$R1" "Diese Datei konnte nicht entfernt werden:$\r$\n$R1"
!insertmacro Text isUnfinished \
    "Qorvix was not installed. Perhaps the disk is full. A version that was installed before is still there." \
    "Qorvix wurde nicht installiert. Vielleicht ist der Datenträger voll. Eine vorher installierte Version ist noch da."
!insertmacro Text isHalf "Qorvix was installed only in part. Please install it again." \
    "Qorvix wurde nur zum Teil installiert. Bitte installieren Sie es noch einmal."

Var oldFolder  ; where a version is installed already, or empty
Var isPlacing  ; not empty once files of the installed version are being replaced

; Goes on when no program of the folder $R0 runs. Windows lets nobody write to a running program.
!macro DefineCloseAll PREFIX
Function ${PREFIX}CloseAll
    !insertmacro CloseOne "qorvix.exe"
    !insertmacro CloseOne "qorvix-cli.exe"
    !insertmacro CloseOne "qorvix-helpreader.exe"
FunctionEnd
!macroend
!macro CloseOne PROGRAM
    !define CLOSE_ID ${__LINE__}
    StrCpy $R1 "$R0\${PROGRAM}"
again${CLOSE_ID}:
    ; GENERIC_WRITE, shared with nobody, OPEN_EXISTING
    System::Call 'kernel32::CreateFileW(w R1, i 0x40000000, i 0, p 0, i 3, i 0, p 0) p .R2 ?e'
    Pop $R3
    ${If} $R2 != -1
        System::Call 'kernel32::CloseHandle(p R2)'
    ${ElseIf} $R3 == 32 ; ERROR_SHARING_VIOLATION
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(isRunning)" /SD IDCANCEL IDRETRY again${CLOSE_ID}
        SetErrorLevel ${STATUS_RUNNING}
        Quit
    ${EndIf}
    !undef CLOSE_ID
!macroend
!insertmacro DefineCloseAll ""
!insertmacro DefineCloseAll "un."

; Leaves $R2 as 1 when the list in the folder $R0 names $R1, otherwise empty.
Function FindInList
    StrCpy $R2 ""
    ClearErrors
    FileOpen $R3 "$R0\${LIST}" r
    ${If} ${Errors}
        Return
    ${EndIf}
    FileRead $R3 $R4
    ${If} $R4 == "${LIST_TITLE}$\r$\n"
        ${Do}
            FileRead $R3 $R4
            ${If} ${Errors}
                ${ExitDo}
            ${EndIf}
            ${If} $R4 == "$R1$\r$\n"
                StrCpy $R2 1
                ${ExitDo}
            ${EndIf}
        ${Loop}
    ${EndIf}
    FileClose $R3
FunctionEnd

; Stops before a file is replaced that no installation put there.
!macro CheckName NAME
    ${If} ${FileExists} "$INSTDIR\${NAME}"
        StrCpy $R0 "$INSTDIR"
        StrCpy $R1 "${NAME}"
        Call FindInList
        ${If} $R2 == ""
            StrCpy $R1 "$INSTDIR\${NAME}"
            MessageBox MB_OK|MB_ICONSTOP "$(isForeign)" /SD IDOK
            SetErrorLevel ${STATUS_FOLDER}
            Quit
        ${EndIf}
    ${EndIf}
!macroend
!macro CheckFile FOLDER NAME SOURCE
    !insertmacro CheckName "${NAME}"
!macroend

; Writes a file beside the place where it belongs. A failure of File ends the installation in .onInstFailed.
!macro WriteFile FOLDER NAME SOURCE
    SetOutPath "${FRESH}\${FOLDER}"
    File "${STAGE}/${SOURCE}"
!macroend

!macro PlaceName NAME
    StrCpy $R1 "${NAME}"
    Call Place
!macroend
!macro PlaceFile FOLDER NAME SOURCE
    CreateDirectory "$INSTDIR\${FOLDER}"
    !insertmacro PlaceName "${NAME}"
!macroend
; Moves the new file $R1 to its place.
Function Place
    StrCpy $R2 $R1
    StrCpy $R1 "$INSTDIR\$R2"
again:
    ClearErrors
    Delete "$R1"
    Rename "${FRESH}\$R2" "$R1"
    ${If} ${Errors}
        MessageBox MB_RETRYCANCEL|MB_ICONSTOP "$(isStuck)" /SD IDCANCEL IDRETRY again
        Abort
    ${EndIf}
FunctionEnd

!macro ListFile FOLDER NAME SOURCE
    FileWrite $R3 "${NAME}$\r$\n"
!macroend
!macro ListFolder NAME
    FileWrite $R3 "${NAME}\$\r$\n"
!macroend
; Writes the names of all that is installed to the list that is open as $R3.
!macro ListAll
    !define FOR_EACH ListFile
    !include "${LISTS}/files.nsh"
    !undef FOR_EACH
    FileWrite $R3 "${UNINSTALLER}$\r$\n"
    !define FOR_EACH ListFolder
    !include "${LISTS}/folders.nsh"
    !undef FOR_EACH
!macroend

!macro DeleteFresh FOLDER NAME SOURCE
    Delete "${FRESH}\${NAME}"
!macroend
!macro RemoveFreshFolder NAME
    RMDir "${FRESH}\${NAME}"
!macroend
Function RemoveFresh
    SetOutPath "$TEMP"
    !define FOR_EACH DeleteFresh
    !include "${LISTS}/files.nsh"
    !undef FOR_EACH
    Delete "${FRESH}\${UNINSTALLER}"
    !define FOR_EACH RemoveFreshFolder
    !include "${LISTS}/folders.nsh"
    !undef FOR_EACH
    RMDir "${FRESH}"
FunctionEnd

; Removes what the list in the folder $R0 names, but not, where that is the folder of this installation, what this version
; installs. DeleteFileW and RemoveDirectoryW, unlike Delete, know no patterns. Folders in which something else lies stay.
Function RemoveListed
    ClearErrors
    FileOpen $R3 "$R0\${LIST}" r
    ${If} ${Errors}
        Return
    ${EndIf}
    FileRead $R3 $R4
    ${If} $R4 == "${LIST_TITLE}$\r$\n"
        ${Do}
            FileRead $R3 $R4
            ${If} ${Errors}
                ${ExitDo}
            ${EndIf}
            StrCpy $R4 $R4 -2
            ${If} $R0 == $INSTDIR
                Call IsOfThisVersion
            ${Else}
                StrCpy $R5 ""
            ${EndIf}
            StrCpy $R6 $R4 1 -1
            StrCpy $R7 "$R0\$R4"
            ${If} $R5 == 1
            ${ElseIf} $R6 == "\"
                System::Call 'kernel32::RemoveDirectoryW(w R7)'
            ${Else}
                System::Call 'kernel32::DeleteFileW(w R7)'
            ${EndIf}
        ${Loop}
    ${EndIf}
    FileClose $R3
FunctionEnd
!macro CompareFile FOLDER NAME SOURCE
    ${If} $R4 == "${NAME}"
        StrCpy $R5 1
    ${EndIf}
!macroend
!macro CompareFolder NAME
    ${If} $R4 == "${NAME}\"
        StrCpy $R5 1
    ${EndIf}
!macroend
; Leaves $R5 as 1 when this version installs $R4, otherwise empty.
Function IsOfThisVersion
    StrCpy $R5 ""
    !define FOR_EACH CompareFile
    !include "${LISTS}/files.nsh"
    !undef FOR_EACH
    !insertmacro CompareFile "" "${UNINSTALLER}" ""
    !define FOR_EACH CompareFolder
    !include "${LISTS}/folders.nsh"
    !undef FOR_EACH
FunctionEnd

!macro ForgetOpenWith ENDING KIND
    DeleteRegValue HKCU "${CLASSES}\${ENDING}\OpenWithProgids" "${KIND}"
    DeleteRegKey /ifempty HKCU "${CLASSES}\${ENDING}\OpenWithProgids"
    DeleteRegKey /ifempty HKCU "${CLASSES}\${ENDING}\OpenWithList\qorvix.exe"
    DeleteRegKey /ifempty HKCU "${CLASSES}\${ENDING}\OpenWithList"
    DeleteRegKey /ifempty HKCU "${CLASSES}\${ENDING}"
!macroend
!macro DefineForgetLinksAndFiles PREFIX
; Takes back what the sections below register. What *.qorvix opened with before comes back, unless the person has chosen
; another program since.
Function ${PREFIX}ForgetLinksAndFiles
    ReadRegDWORD $R0 HKCU "${UNINSTALL_KEY}" "StartMenuEntry"
    ${If} $R0 == 1
        Delete "$SMPROGRAMS\Qorvix.lnk"
    ${EndIf}
    ReadRegDWORD $R0 HKCU "${UNINSTALL_KEY}" "DesktopEntry"
    ${If} $R0 == 1
        Delete "$DESKTOP\Qorvix.lnk"
    ${EndIf}
    ReadRegDWORD $R0 HKCU "${UNINSTALL_KEY}" "FileTypes"
    ${If} $R0 != 1
        Return
    ${EndIf}
    ReadRegStr $R0 HKCU "${CLASSES}\.qorvix" ""
    ${If} $R0 == "Qorvix.Archive.1"
        ReadRegStr $R1 HKCU "${UNINSTALL_KEY}" "FormerArchiveType"
        ${If} $R1 == ""
            DeleteRegValue HKCU "${CLASSES}\.qorvix" ""
        ${Else}
            WriteRegStr HKCU "${CLASSES}\.qorvix" "" $R1
        ${EndIf}
    ${EndIf}
    DeleteRegValue HKCU "${UNINSTALL_KEY}" "FormerArchiveType"
    !insertmacro ForgetOpenWith ".qorvix" "Qorvix.Archive.1"
    !insertmacro ForgetOpenWith ".log" "Qorvix.Logbook.1"
    !insertmacro ForgetOpenWith ".zip" "Qorvix.Logbook.1"
    !insertmacro ForgetOpenWith ".a" "Qorvix.Logbook.1"
    DeleteRegKey HKCU "${CLASSES}\Qorvix.Archive.1"
    DeleteRegKey HKCU "${CLASSES}\Qorvix.Logbook.1"
    DeleteRegKey HKCU "${PROGRAM_KEY}"
    DeleteRegValue HKCU "Software\RegisteredApplications" "Qorvix"
FunctionEnd
!macroend
!insertmacro DefineForgetLinksAndFiles ""
!insertmacro DefineForgetLinksAndFiles "un."

!define TELL_SHELL "System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'" ; SHCNE_ASSOCCHANGED

Section "$(partProgram)" sectionProgram
    SectionIn RO
    StrCpy $R0 "$INSTDIR"
    Call CloseAll
    ${If} $oldFolder != ""
        StrCpy $R0 "$oldFolder"
        Call CloseAll
    ${EndIf}
    !define FOR_EACH CheckFile
    !include "${LISTS}/files.nsh"
    !undef FOR_EACH
    !insertmacro CheckName "${UNINSTALLER}"
    ${If} ${FileExists} "$INSTDIR\${LIST}"
        ClearErrors
        FileOpen $R3 "$INSTDIR\${LIST}" r
        FileRead $R3 $R4
        FileClose $R3
        ${If} $R4 != "${LIST_TITLE}$\r$\n"
            StrCpy $R1 "$INSTDIR\${LIST}"
            MessageBox MB_OK|MB_ICONSTOP "$(isForeign)" /SD IDOK
            SetErrorLevel ${STATUS_FOLDER}
            Quit
        ${EndIf}
    ${EndIf}

    ClearErrors
    CreateDirectory "${FRESH}"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "$(isClosed)" /SD IDOK
        SetErrorLevel ${STATUS_FOLDER}
        Quit
    ${EndIf}
    ; The same folder may have two names.
    ${If} ${FileExists} "$oldFolder\Qorvix-${VERSION}-new\*.*"
        StrCpy $oldFolder ""
    ${EndIf}
    !define FOR_EACH WriteFile
    !include "${LISTS}/files.nsh"
    !undef FOR_EACH
    ClearErrors
    WriteUninstaller "${FRESH}\${UNINSTALLER}"
    ${If} ${Errors}
        Abort
    ${EndIf}

    ; From here on the list names the files of both versions, should the computer stop.
    SetOutPath "$INSTDIR"
    ClearErrors
    ${If} ${FileExists} "$INSTDIR\${LIST}"
        FileOpen $R3 "$INSTDIR\${LIST}" a
        FileSeek $R3 0 END
    ${Else}
        FileOpen $R3 "$INSTDIR\${LIST}" w
        FileWrite $R3 "${LIST_TITLE}$\r$\n"
    ${EndIf}
    !insertmacro ListAll
    FileClose $R3
    ${If} ${Errors}
        Abort
    ${EndIf}
    StrCpy $isPlacing 1
    !define FOR_EACH PlaceFile
    !include "${LISTS}/files.nsh"
    !undef FOR_EACH
    !insertmacro PlaceName "${UNINSTALLER}"
    Call RemoveFresh

    StrCpy $R0 "$INSTDIR"
    Call RemoveListed
    ${If} $oldFolder != ""
        StrCpy $R0 "$oldFolder"
        Call RemoveListed
        Delete "$oldFolder\${LIST}"
        RMDir "$oldFolder"
    ${EndIf}
    FileOpen $R3 "$INSTDIR\${LIST}" w
    FileWrite $R3 "${LIST_TITLE}$\r$\n"
    !insertmacro ListAll
    FileClose $R3

    Call ForgetLinksAndFiles
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Qorvix"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\qorvix.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Qorvix developers"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${KIBIBYTES}
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "StartMenuEntry" 0
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "DesktopEntry" 0
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "FileTypes" 0
SectionEnd

Section "$(partStartMenu)" sectionStartMenu
    CreateShortCut "$SMPROGRAMS\Qorvix.lnk" "$INSTDIR\qorvix.exe" "" "" "" SW_SHOWNORMAL "" "$(about)"
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "StartMenuEntry" 1
SectionEnd

Section /o "$(partDesktop)" sectionDesktop
    CreateShortCut "$DESKTOP\Qorvix.lnk" "$INSTDIR\qorvix.exe" "" "" "" SW_SHOWNORMAL "" "$(about)"
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "DesktopEntry" 1
SectionEnd

!macro Kind NAME TITLE
    WriteRegStr HKCU "${CLASSES}\${NAME}" "" "${TITLE}"
    WriteRegStr HKCU "${CLASSES}\${NAME}\DefaultIcon" "" "${FILE_ICON}"
    WriteRegStr HKCU "${CLASSES}\${NAME}\shell\open\command" "" '"$INSTDIR\qorvix.exe" "%1"'
!macroend
Section "$(partFiles)" sectionFiles
    ReadRegStr $R0 HKCU "${CLASSES}\.qorvix" ""
    ${If} $R0 != ""
    ${AndIf} $R0 != "Qorvix.Archive.1"
        WriteRegStr HKCU "${UNINSTALL_KEY}" "FormerArchiveType" $R0
    ${EndIf}
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "FileTypes" 1
    !insertmacro Kind "Qorvix.Archive.1" "$(archive)"
    !insertmacro Kind "Qorvix.Logbook.1" "$(logbook)"
    WriteRegStr HKCU "${CLASSES}\.qorvix" "" "Qorvix.Archive.1"
    WriteRegStr HKCU "${CLASSES}\.qorvix\OpenWithProgids" "Qorvix.Archive.1" ""
    WriteRegStr HKCU "${CLASSES}\.log\OpenWithProgids" "Qorvix.Logbook.1" ""
    WriteRegStr HKCU "${CLASSES}\.zip\OpenWithProgids" "Qorvix.Logbook.1" ""
    ; The system gives no program to *.a. A kind in OpenWithProgids would get its double click, for want of another.
    WriteRegStr HKCU "${CLASSES}\.a\OpenWithList\qorvix.exe" "" ""
    DeleteRegValue HKCU "${CLASSES}\.a\OpenWithList\qorvix.exe" ""
    WriteRegStr HKCU "${PROGRAM_KEY}" "FriendlyAppName" "Qorvix"
    WriteRegStr HKCU "${PROGRAM_KEY}\DefaultIcon" "" "${FILE_ICON}"
    WriteRegStr HKCU "${PROGRAM_KEY}\shell\open\command" "" '"$INSTDIR\qorvix.exe" "%1"'
    WriteRegStr HKCU "${PROGRAM_KEY}\SupportedTypes" ".log" ""
    WriteRegStr HKCU "${PROGRAM_KEY}\SupportedTypes" ".a" ""
    WriteRegStr HKCU "${PROGRAM_KEY}\SupportedTypes" ".zip" ""
    WriteRegStr HKCU "${PROGRAM_KEY}\SupportedTypes" ".qorvix" ""
    WriteRegStr HKCU "${PROGRAM_KEY}\Capabilities" "ApplicationName" "Qorvix"
    WriteRegStr HKCU "${PROGRAM_KEY}\Capabilities" "ApplicationDescription" "$(about)"
    WriteRegStr HKCU "${PROGRAM_KEY}\Capabilities\FileAssociations" ".qorvix" "Qorvix.Archive.1"
    WriteRegStr HKCU "${PROGRAM_KEY}\Capabilities\FileAssociations" ".log" "Qorvix.Logbook.1"
    WriteRegStr HKCU "${PROGRAM_KEY}\Capabilities\FileAssociations" ".zip" "Qorvix.Logbook.1"
    WriteRegStr HKCU "Software\RegisteredApplications" "Qorvix" "${PROGRAM_KEY}\Capabilities"
SectionEnd

Section
    ${TELL_SHELL}
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${sectionProgram} $(aboutProgram)
    !insertmacro MUI_DESCRIPTION_TEXT ${sectionStartMenu} $(aboutStartMenu)
    !insertmacro MUI_DESCRIPTION_TEXT ${sectionDesktop} $(aboutDesktop)
    !insertmacro MUI_DESCRIPTION_TEXT ${sectionFiles} $(aboutFiles)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; An update begins with the choices that were made before.
!macro Choose NAME SECTION
    ClearErrors
    ReadRegDWORD $R0 HKCU "${UNINSTALL_KEY}" "${NAME}"
    ${IfNot} ${Errors}
        ${If} $R0 == 1
            !insertmacro SelectSection ${SECTION}
        ${Else}
            !insertmacro UnselectSection ${SECTION}
        ${EndIf}
    ${EndIf}
!macroend
Function .onInit
    ReadRegStr $oldFolder HKCU "${UNINSTALL_KEY}" "InstallLocation"
    !insertmacro Choose "StartMenuEntry" ${sectionStartMenu}
    !insertmacro Choose "DesktopEntry" ${sectionDesktop}
    !insertmacro Choose "FileTypes" ${sectionFiles}
FunctionEnd

Function .onInstFailed
    Call RemoveFresh
    RMDir "$INSTDIR"
    ${If} $isPlacing == ""
        MessageBox MB_OK|MB_ICONSTOP "$(isUnfinished)" /SD IDOK
    ${Else}
        MessageBox MB_OK|MB_ICONSTOP "$(isHalf)" /SD IDOK
    ${EndIf}
    SetErrorLevel ${STATUS_FAILED}
FunctionEnd

!macro UninstallFile FOLDER NAME SOURCE
    Delete "$INSTDIR\${NAME}"
    ${If} ${FileExists} "$INSTDIR\${NAME}"
        StrCpy $R1 "$INSTDIR\${NAME}"
    ${EndIf}
!macroend
!macro UninstallFolder NAME
    RMDir "$INSTDIR\${NAME}"
!macroend
Section "Uninstall"
    StrCpy $R0 "$INSTDIR"
    Call un.CloseAll
    SetOutPath "$TEMP"
    StrCpy $R1 ""
    !define FOR_EACH UninstallFile
    !include "${LISTS}/files.nsh"
    !undef FOR_EACH
    ${If} $R1 != ""
        MessageBox MB_OK|MB_ICONSTOP "$(isLeft)" /SD IDOK
        SetErrorLevel ${STATUS_FAILED}
        Abort
    ${EndIf}
    Delete "$INSTDIR\${LIST}"
    Delete "$INSTDIR\${UNINSTALLER}"
    !define FOR_EACH UninstallFolder
    !include "${LISTS}/folders.nsh"
    !undef FOR_EACH
    RMDir "$INSTDIR"
    Call un.ForgetLinksAndFiles
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    ${TELL_SHELL}
SectionEnd
