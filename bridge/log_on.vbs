' Gives the stand-in for Outlook the mailbox of a file, in place of the one that it has:
'   cscript //nologo log_on.vbs MAILBOX      (a Windows path)
Option Explicit
CreateObject("Outlook.Application").GetNamespace("MAPI").Logon WScript.Arguments(0), "", False, True
WScript.Echo "log_on.vbs: done"
