@echo off
rem Converts the files and folders that are dropped on it: SOURCE.xml to SOURCE.txt, beside it.
setlocal EnableExtensions DisableDelayedExpansion
set "program=%~dp0xml2ryk-batch.exe"
set "code=0"
set "is_dropped="
if not exist "%program%" (
    echo xml2ryk-batch.exe is not beside this file. Extract the whole zip first.
    set "code=1"
    goto end
)
if "%~1"=="" (
    echo Drop XML files, or folders with XML files, on the icon of this file.
    set "code=1"
    goto end
)

rem A name with an ampersand and without blanks comes without quotation marks, and ends the command
rem at the ampersand. So the names are taken from the whole command line. In its copy here, a
rem question mark, which no name has, stands for each quotation mark.
set "line="
if defined cmdcmdline set "line=%cmdcmdline:"=?%"
:next
if not defined line goto typed
set "file="
set "rest="
for /f "tokens=* delims= " %%a in ("%line%") do set "rest=%%a"
set "line="
if not defined rest goto typed
set "ends= "
if "%rest:~0,1%"=="?" set "ends=?"
for /f "tokens=1* delims=%ends%" %%a in ("%rest%") do (
    set "file=%%a"
    set "line=%%b"
)
if not defined file goto next
set "file=%file:?=%"
if not defined file goto next
if defined is_dropped goto convert
if /i "%file%"=="%~0" set "is_dropped=yes"
goto next

rem Started by a command of somebody who has put the quotation marks himself.
:typed
if defined is_dropped goto end
set "file=%~1"
if not defined file goto end
shift /1

:convert
set "name=%file%"
if "%file:~-4,1%"=="." set "name=%file:~0,-4%"
if exist "%file%\*" (
    "%program%" convert --into "%file%" "%file%"
) else (
    "%program%" convert "%file%" "%name%.txt"
)
set "ended=%errorlevel%"
if "%ended%"=="0" echo Everything is in the exchange file.
if "%ended%"=="2" echo Not converted. An older exchange file is unchanged.
if "%ended%"=="3" echo Converted, but something of the source is not in the exchange file.
if "%ended%"=="4" echo Not written. An older exchange file is unchanged.
set "known="
for %%a in (0 2 3 4) do if "%ended%"=="%%a" set "known=yes"
if not defined known echo Something went wrong. An older exchange file is unchanged.
if not "%ended%"=="0" set "code=%ended%"
echo.
goto next

:end
pause
rem What stands behind an ampersand would be taken for the next command.
if defined is_dropped exit %code%
exit /b %code%
