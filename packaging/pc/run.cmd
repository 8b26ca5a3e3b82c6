@echo off
rem Starts the handheld, then Quorvane on it, and ends the handheld when Quorvane is closed.
rem run.cmd NAME starts another handheld: NAME is one of the files in the folder profiles, without .ini.
setlocal
cd /d "%~dp0"
set profile=%~1
if "%profile%"=="" set profile=pocketpc
if not exist "profiles\%profile%.ini" goto unknown
start "" handheld.exe --profile "profiles\%profile%.ini"
handheld.exe --wait
if errorlevel 1 goto failed
Quorvane.exe
handheld.exe --end
exit /b 0

:unknown
echo There is no handheld "%profile%". The files in the folder profiles are:
dir /b profiles
exit /b 2

:failed
echo The handheld did not start.
exit /b 1
