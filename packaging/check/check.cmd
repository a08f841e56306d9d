@echo off
rem Tries ZORBOffice on this Windows, with what Office there is, and writes report.txt here. README.txt tells the rest.
rem   check.cmd [/machine] [/notests] [/noword] [/nooutlook] [/nosuite]
setlocal
"%SystemRoot%\System32\cscript.exe" //nologo "%~dp0check.js" %*
exit /b %errorlevel%
