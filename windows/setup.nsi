; The installer for Windows, for one user and without administrator rights. windows/make-setup compiles
; it with VERSION, SETUP (what to make), FOLDER (what to install), and LIST: EachFile and EachFolder.
;
; The entry of the user alone tells which folder is that of the installed xml2ryk: nobody else can write
; it, while the files of a folder may be anybody's, an uninstaller too.
;
; What goes wrong mostly leaves an older installation whole: the new files are put aside first, then the
; older uninstaller removes its own files, or refuses where one is in use, and then the new ones are moved
; to their place, all or none. Ends with 0, with 2 where nothing has changed, or with 3 where what was
; installed is gone or not whole. The uninstaller ends with the same.

Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all
AllowSkipFiles off

!include LogicLib.nsh
!include MUI2.nsh
!include "${LIST}"

!define PROGRAM "xml2ryk-window.exe"
!define UNINSTALLER "xml2ryk-uninstall.exe"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\xml2ryk"
!define CLASSES "Software\Classes"
!define APPLICATION "${CLASSES}\Applications\${PROGRAM}"
!define PROGID "xml2ryk.source"
!define ASIDE "$INSTDIR\xml2ryk-setup.tmp" ; removed with all that is in it, so of a name that is ours
!define MENU "$SMPROGRAMS\xml2ryk"
!define DOCUMENTS_EN "xml2ryk documents.lnk"
!define DOCUMENTS_RU "Документы xml2ryk.lnk"
!define EXIT_UNCHANGED 2 ; that of Abort
!define EXIT_HALFWAY 3

Name xml2ryk
BrandingText "xml2ryk ${VERSION}"
OutFile "${SETUP}"
InstallDir "$LOCALAPPDATA\Programs\xml2ryk"
InstallDirRegKey HKCU "${ENTRY}" InstallLocation

!define MUI_ICON ..\packaging\icons\xml2ryk.ico
!define MUI_UNICON ..\packaging\icons\xml2ryk.ico
!define MUI_WELCOMEFINISHPAGE_BITMAP "${NSISDIR}/Contrib/Graphics/Wizard/nsis3-metro.bmp"
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\${PROGRAM}"
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE refuseFilesOfOthers
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE Russian

!macro Text name english russian
    LangString ${name} ${LANG_ENGLISH} "${english}"
    LangString ${name} ${LANG_RUSSIAN} "${russian}"
!macroend
!insertmacro Text documents "${DOCUMENTS_EN}" "${DOCUMENTS_RU}"
!insertmacro Text readme "README.html" "README.ru.html"
!insertmacro Text typeOfSource "Trade data" "Торговые данные"
!insertmacro Text programs "Programs, documents, examples" "Программы, документы, примеры"
!insertmacro Text aboutPrograms \
    "With entries in the start menu, and in $\"Open with$\" of XML and YML files." \
    "С ярлыками в меню «Пуск» и строкой в меню «Открыть с помощью» файлов XML и YML."
!insertmacro Text path "xml2ryk in the command prompt" "xml2ryk в командной строке"
!insertmacro Text aboutPath \
    "Adds the folder to your PATH, so that xml2ryk and xml2ryk-batch are found by their names." \
    "Добавляет папку в вашу переменную PATH, чтобы xml2ryk и xml2ryk-batch вызывались по имени."
!insertmacro Text foreign \
    "This folder has a file $0 that is not of an installed xml2ryk. Choose another folder." \
    "В этой папке есть файл $0, который не относится к установленному xml2ryk. Выберите другую папку."
!insertmacro Text notInstalled \
    "xml2ryk is not installed in $INSTDIR. What is installed is removed in $\"Apps$\" of the settings of Windows." \
    "В папке $INSTDIR программа xml2ryk не установлена. Установленную удаляют в разделе «Приложения» параметров Windows."
!insertmacro Text inUse \
    "A file in $0 is in use. Close xml2ryk, the command prompts that it runs in, and its documents." \
    "Файл в папке $0 занят. Закройте xml2ryk, окна командной строки, в которых он работает, и его документы."
!insertmacro Text notWritten "The file $INSTDIR\$0 can't be written." "Не удаётся записать файл $INSTDIR\$0."
!insertmacro Text notPlaced \
    "The file $INSTDIR\$0 can't be written. If you cancel, neither this version nor an older one is installed." \
    "Не удаётся записать файл $INSTDIR\$0. При отмене не будет установлено ни этой версии, ни прежней."

VIProductVersion "${VERSION}.0"
!macro Describe language description
    VIAddVersionKey /LANG=${language} ProductName xml2ryk
    VIAddVersionKey /LANG=${language} FileDescription "${description}"
    VIAddVersionKey /LANG=${language} FileVersion "${VERSION}"
    VIAddVersionKey /LANG=${language} ProductVersion "${VERSION}"
    VIAddVersionKey /LANG=${language} LegalCopyright "MIT License"
!macroend
!insertmacro Describe ${LANG_ENGLISH} "xml2ryk setup"
!insertmacro Describe ${LANG_RUSSIAN} "Установка xml2ryk"

; The user's PATH, by calls of the system: a string of this language would cut a long one.
!define STRINGS_UNEXPANDED 0x10000006
!define ERROR_FILE_NOT_FOUND 2
!define REG_EXPAND_SZ 2
!define OF_PATH 'p 0x80000001, w "Environment", w "Path"'
!macro PathFunctions un
    ; Of the folder $0. Into $R0 the type of the value, into $R1 its text between two semicolons, with
    ; room for the folder, into $R2 where the folder stands there between its semicolons, or 0. Where
    ; the value is none of text, or the folder has a semicolon itself, $R2 is empty.
    Function ${un}readPath
        StrCpy $R2 ""
        System::Call 'shlwapi::StrStrW(w r0, w ";") p.R4'
        ${If} $R4 <> 0
            Return
        ${EndIf}
        System::Call 'advapi32::RegGetValueW(${OF_PATH}, i ${STRINGS_UNEXPANDED}, *i .R0, p 0, *i 0R3) i.R4'
        ${If} $R4 = ${ERROR_FILE_NOT_FOUND}
            StrCpy $R0 ${REG_EXPAND_SZ}
            StrCpy $R3 0
        ${ElseIf} $R4 <> 0
            Return
        ${EndIf}
        StrLen $R4 ";$0;;"
        IntOp $R4 $R4 * 2
        IntOp $R4 $R4 + $R3
        System::Call 'kernel32::GlobalAlloc(i 0x40, p R4) p.R1'
        System::Call 'kernel32::lstrcpyW(p R1, w ";")'
        ${If} $R3 > 2
            IntPtrOp $R2 $R1 + 2
            System::Call 'advapi32::RegGetValueW(${OF_PATH}, i ${STRINGS_UNEXPANDED}, p 0, p R2, *i R3) i.R4'
            ${If} $R4 <> 0 ; others have changed it meanwhile
                StrCpy $R2 ""
                Return
            ${EndIf}
            System::Call 'kernel32::lstrcatW(p R1, w ";")'
        ${EndIf}
        StrCpy $R3 ";$0;"
        System::Call 'shlwapi::StrStrIW(p R1, w R3) p.R2'
    FunctionEnd

    ; Takes what readPath has made, the first and the last semicolon excepted.
    Function ${un}writePath
        System::Call 'kernel32::lstrlenW(p R1) i.R3'
        ${If} $R3 > 1
            IntOp $R3 $R3 * 2
            IntPtrOp $R4 $R1 + $R3
            IntPtrOp $R4 $R4 - 2
            System::Call '*$R4(&i2 0)'
            IntPtrOp $R4 $R1 + 2
            IntOp $R3 $R3 - 2
            System::Call 'advapi32::RegSetKeyValueW(${OF_PATH}, i R0, p R4, i R3)'
        ${Else}
            DeleteRegValue HKCU Environment Path
        ${EndIf}
        SendMessage ${HWND_BROADCAST} ${WM_SETTINGCHANGE} 0 "STR:Environment" /TIMEOUT=5000
    FunctionEnd

    ; The folder $0.
    Function ${un}removeFromPath
        Call ${un}readPath
        ${If} $R2 != 0
        ${AndIf} $R2 != ""
            StrLen $R3 ";$0"
            IntOp $R3 $R3 * 2
            IntPtrOp $R3 $R2 + $R3
            System::Call 'kernel32::lstrlenW(p R3) i.R4'
            IntOp $R4 $R4 * 2
            IntOp $R4 $R4 + 2
            System::Call 'ntdll::RtlMoveMemory(p R2, p R3, p R4)'
            Call ${un}writePath
        ${EndIf}
    FunctionEnd
!macroend
!insertmacro PathFunctions ""
!insertmacro PathFunctions un.

; EachFile and EachFolder call these.

!macro Extract file
    File "/oname=${ASIDE}\${file}" "${FOLDER}\${file}"
!macroend
!macro MakeAside folder
    CreateDirectory "${ASIDE}\${folder}"
!macroend
!macro Make folder
    CreateDirectory "$INSTDIR\${folder}"
!macroend
!macro Place file
    StrCpy $0 "${file}"
    Call place
!macroend
!macro RemovePlaced file
    ${IfNot} ${FileExists} "${ASIDE}\${file}"
        Delete "$INSTDIR\${file}"
    ${EndIf}
!macroend
!macro FindForeign file
    ${If} ${FileExists} "$INSTDIR\${file}"
        StrCpy $0 "${file}"
    ${EndIf}
!macroend
!macro FindUsed file
    StrCpy $0 "${file}"
    Call un.findUsed
!macroend
!macro Remove file
    Delete "$INSTDIR\${file}"
!macroend
!macro RemoveFolder folder
    RMDir "$INSTDIR\${folder}"
!macroend

; "Open with", which changes nobody's default.
!macro WriteClass class
    WriteRegStr HKCU "${class}\DefaultIcon" "" "$INSTDIR\${PROGRAM}"
    WriteRegStr HKCU "${class}\shell\open\command" "" '"$INSTDIR\${PROGRAM}" "%1"'
!macroend
!macro EachType do
    !insertmacro ${do} .xml
    !insertmacro ${do} .yml
!macroend
!macro WriteType type
    WriteRegStr HKCU "${APPLICATION}\SupportedTypes" ${type} ""
    WriteRegStr HKCU "${CLASSES}\${type}\OpenWithProgids" ${PROGID} ""
!macroend
!macro DeleteType type
    DeleteRegValue HKCU "${CLASSES}\${type}\OpenWithProgids" ${PROGID}
    DeleteRegKey /ifempty HKCU "${CLASSES}\${type}\OpenWithProgids"
    DeleteRegKey /ifempty HKCU "${CLASSES}\${type}"
!macroend
!macro TellShell
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Var older ; the folder of an older installation

; Nobody's file is to be overwritten, nor removed at the end, nor run.
Function refuseFilesOfOthers
    StrCpy $0 ""
    ${If} $INSTDIR != $older
        !insertmacro FindForeign "${UNINSTALLER}"
        !insertmacro EachFile FindForeign
    ${EndIf}
    ${If} $0 != ""
        MessageBox MB_OK|MB_ICONSTOP $(foreign) /SD IDOK
        Abort
    ${EndIf}
FunctionEnd

; The installation in the folder $older. Where its uninstaller is lost, or damaged, nobody knows whose
; files are there now: they stay.
Function removeOlder
    StrCpy $0 $older
    again:
    ClearErrors
    ExecWait '"$0\${UNINSTALLER}" /S _?=$0' $1
    ${If} ${Errors}
        SetErrorLevel ${EXIT_HALFWAY}
        Call removeFromPath
        Return
    ${EndIf}
    ${If} $1 <> ${EXIT_UNCHANGED}
        SetErrorLevel ${EXIT_HALFWAY}
    ${EndIf}
    ${If} $1 <> 0
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION $(inUse) /SD IDCANCEL IDRETRY again
        Abort
    ${EndIf}
    ; It may still be looked at by a virus scanner.
    ${For} $1 1 20
        Delete "$0\${UNINSTALLER}"
        ${IfNot} ${FileExists} "$0\${UNINSTALLER}"
            ${Break}
        ${EndIf}
        Sleep 250
    ${Next}
    RMDir "$0"
FunctionEnd

; Renames what stands in the place of the new file $0, which may be the user's.
Function keepFileOfUser
    StrCpy $2 "$0.old"
    StrCpy $3 1
    ${While} ${FileExists} "$INSTDIR\$2"
        IntOp $3 $3 + 1
        StrCpy $2 "$0.old$3"
    ${EndWhile}
    Rename "$INSTDIR\$0" "$INSTDIR\$2"
FunctionEnd

; Moves the new file $0. A virus scanner may still look at the one of the older installation.
Function place
    again:
    ${For} $1 1 20
        ${If} ${FileExists} "$INSTDIR\$0"
            Call keepFileOfUser
        ${EndIf}
        ClearErrors
        Rename "${ASIDE}\$0" "$INSTDIR\$0"
        ${IfNot} ${Errors}
            Return
        ${EndIf}
        Sleep 250
    ${Next}
    MessageBox MB_RETRYCANCEL|MB_ICONSTOP $(notPlaced) /SD IDCANCEL IDRETRY again
    !insertmacro EachFile RemovePlaced
    !insertmacro EachFolder RemoveFolder
    DeleteRegKey HKCU "${ENTRY}"
    Abort
FunctionEnd

Function .onInstFailed
    RMDir /r "${ASIDE}"
    RMDir "$INSTDIR"
FunctionEnd

Section $(programs) programs
    SectionIn RO
    Call refuseFilesOfOthers
    RMDir /r "${ASIDE}"
    CreateDirectory "${ASIDE}"
    !insertmacro EachFolder MakeAside
    !insertmacro EachFile Extract
    ClearErrors
    WriteUninstaller "${ASIDE}\${UNINSTALLER}"
    ${If} ${Errors}
        StrCpy $0 "${UNINSTALLER}"
        MessageBox MB_OK|MB_ICONSTOP $(notWritten) /SD IDOK
        Abort
    ${EndIf}

    ${If} $older != ""
        Call removeOlder
    ${EndIf}

    ; Ahead of the files: where this is killed between them, the next one need not refuse the folder.
    WriteRegStr HKCU "${ENTRY}" DisplayName xml2ryk
    WriteRegStr HKCU "${ENTRY}" DisplayVersion "${VERSION}"
    WriteRegStr HKCU "${ENTRY}" Publisher "the xml2ryk authors"
    WriteRegStr HKCU "${ENTRY}" DisplayIcon "$INSTDIR\${PROGRAM}"
    WriteRegStr HKCU "${ENTRY}" InstallLocation $INSTDIR
    WriteRegStr HKCU "${ENTRY}" UninstallString '"$INSTDIR\${UNINSTALLER}"'
    WriteRegStr HKCU "${ENTRY}" QuietUninstallString '"$INSTDIR\${UNINSTALLER}" /S'
    SectionGetSize ${programs} $0
    WriteRegDWORD HKCU "${ENTRY}" EstimatedSize $0
    WriteRegDWORD HKCU "${ENTRY}" NoModify 1
    WriteRegDWORD HKCU "${ENTRY}" NoRepair 1

    !insertmacro EachFolder Make
    !insertmacro EachFile Place
    !insertmacro Place "${UNINSTALLER}" ; last, since it takes all of these names for its own
    RMDir /r "${ASIDE}"

    SetOutPath $DOCUMENTS ; where the window begins
    CreateDirectory "${MENU}"
    CreateShortcut "${MENU}\xml2ryk.lnk" "$INSTDIR\${PROGRAM}"
    CreateShortcut "${MENU}\$(documents)" "$INSTDIR\$(readme)"

    WriteRegStr HKCU "${APPLICATION}" FriendlyAppName xml2ryk
    !insertmacro WriteClass "${APPLICATION}"
    WriteRegStr HKCU "${CLASSES}\${PROGID}" "" $(typeOfSource)
    !insertmacro WriteClass "${CLASSES}\${PROGID}"
    !insertmacro EachType WriteType
    !insertmacro TellShell
    SetErrorLevel 0
SectionEnd

Section $(path) path
    StrCpy $0 $INSTDIR
    Call readPath
    ${If} $R2 == 0
        StrCpy $R3 "$0;"
        System::Call 'kernel32::lstrcatW(p R1, w R3)'
        Call writePath
    ${EndIf}
SectionEnd

; Here, since it needs the sections.
Function .onInit
    ReadRegStr $older HKCU "${ENTRY}" InstallLocation
    ${If} $older != ""
        StrCpy $0 $older
        Call readPath
        ${If} $R2 == 0
            !insertmacro UnselectSection ${path}
        ${EndIf}
    ${EndIf}
FunctionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
!insertmacro MUI_DESCRIPTION_TEXT ${programs} $(aboutPrograms)
!insertmacro MUI_DESCRIPTION_TEXT ${path} $(aboutPath)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Whether the file $0 is in use, into $1. Where it is a program that runs, the right to write is refused.
; Who has it open mostly refuses that to delete, which FileOpen would not ask for.
!define DELETE_AND_WRITE 0x40010000
!define FILE_SHARE_READ 1
!define OPEN_EXISTING 3
!define INVALID_HANDLE_VALUE -1
Function un.findUsed
    ${If} ${FileExists} "$INSTDIR\$0"
        SetFileAttributes "$INSTDIR\$0" NORMAL
        StrCpy $R1 "$INSTDIR\$0"
        System::Call 'kernel32::CreateFileW(w R1, i ${DELETE_AND_WRITE}, i ${FILE_SHARE_READ}, p 0, \
            i ${OPEN_EXISTING}, i 0, p 0) p.R2'
        ${If} $R2 = ${INVALID_HANDLE_VALUE}
            StrCpy $1 yes
        ${Else}
            System::Call 'kernel32::CloseHandle(p R2)'
        ${EndIf}
    ${EndIf}
FunctionEnd

; It knows its files by their names alone, which files beside a copy of it may have, too.
Function un.onInit
    ReadRegStr $0 HKCU "${ENTRY}" InstallLocation
    ${If} $0 != $INSTDIR
        MessageBox MB_OK|MB_ICONSTOP $(notInstalled) /SD IDOK
        Abort
    ${EndIf}
FunctionEnd

Section Uninstall
    again:
    StrCpy $1 no
    !insertmacro EachFile FindUsed
    ${If} $1 == no
        SetErrorLevel ${EXIT_HALFWAY}
        ClearErrors
        !insertmacro EachFile Remove
        ${If} ${Errors}
            StrCpy $1 yes
        ${EndIf}
    ${EndIf}
    ${If} $1 == yes
        StrCpy $0 $INSTDIR
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION $(inUse) /SD IDCANCEL IDRETRY again
        Abort
    ${EndIf}
    !insertmacro EachFolder RemoveFolder

    Delete "${MENU}\xml2ryk.lnk"
    Delete "${MENU}\${DOCUMENTS_EN}"
    Delete "${MENU}\${DOCUMENTS_RU}"
    RMDir "${MENU}"
    !insertmacro EachType DeleteType
    DeleteRegKey HKCU "${CLASSES}\${PROGID}"
    DeleteRegKey HKCU "${APPLICATION}"
    DeleteRegKey /ifempty HKCU "${CLASSES}\Applications"
    !insertmacro TellShell
    StrCpy $0 $INSTDIR
    Call un.removeFromPath
    Delete "$INSTDIR\${UNINSTALLER}"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${ENTRY}"
    SetErrorLevel 0
SectionEnd
