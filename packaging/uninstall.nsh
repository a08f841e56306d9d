; Removes what files.txt lists, what the libraries have registered, and the entry in the list of installed programs.

Function un.onInit
  Call un.read_system
  StrCpy $Scope user
  SetShellVarContext current
  ReadRegStr $0 HKLM "${KEY}" InstallLocation
  ${If} $0 == $INSTDIR
    StrCpy $Scope machine
    SetShellVarContext all
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != Admin
      ${If} ${Silent}
        !insertmacro END_WITH ${NO_ADMINISTRATOR} "ZORBOffice is installed for all users: run this as an administrator."
      ${EndIf}
      ExecShell runas "$INSTDIR\uninstall.exe"
      Quit
    ${EndIf}
  ${EndIf}
FunctionEnd

; Where another copy was registered since, that registration is not this one's to remove. Wine keeps one entry for both
; bitnesses among a user's classes, so either path will do, and both are looked at before anything goes.
!macro IS_REGISTERED bits answer
  SetRegView ${bits}
  ReadRegStr $0 SHCTX "${CLASS}" ""
  ${If} $Has64 == yes
    SetRegView 64
  ${EndIf}
  StrCpy ${answer} no
  ${If} $0 == "$INSTDIR\win32\ZORBOffice.ocx"
  ${OrIf} $0 == "$INSTDIR\win64\ZORBOffice.ocx"
    StrCpy ${answer} yes
  ${EndIf}
!macroend

!macro UNREGISTER bits registered
  ${If} ${registered} == yes
    !insertmacro REGSVR32 ${bits} "/u"
    ${If} $0 <> 0
      !insertmacro GIVE_UP ${NOT_REGISTERED} "The ${bits}-bit library could not be unregistered (regsvr32: $0)."
    ${EndIf}
  ${EndIf}
!macroend

Section Uninstall
  InitPluginsDir
  CopyFiles /SILENT "$INSTDIR\files.txt" "$PLUGINSDIR\files.txt"
  StrCpy $Trouble ""
  !insertmacro EACH_LINE "un." "$PLUGINSDIR\files.txt" is_in_use_but_for_itself
  ${If} $Trouble != ""
    !insertmacro GIVE_UP ${IN_USE} "A program is using $Trouble. Close the programs that use ZORBOffice; nothing was removed."
  ${EndIf}
  !insertmacro IS_REGISTERED 32 $R3
  StrCpy $R4 no
  ${If} $Has64 == yes
    !insertmacro IS_REGISTERED 64 $R4
  ${EndIf}
  !insertmacro UNREGISTER 32 $R3
  !insertmacro UNREGISTER 64 $R4
  ReadRegStr $Made SHCTX "${KEY}" MadeFolder
  StrCpy $Trouble ""
  !insertmacro EACH_LINE "un." "$PLUGINSDIR\files.txt" remove
  ${If} $Trouble != ""
    !insertmacro GIVE_UP ${NOT_WRITTEN} "$Trouble cannot be removed."
  ${EndIf}
  DeleteRegKey SHCTX "${KEY}"
  Call un.remove_made_folders
  SetErrorLevel 0
SectionEnd

; Started by setup, it runs where it stands.
Function un.is_in_use_but_for_itself
  ${If} $Line != "uninstall.exe"
    Call un.is_in_use
  ${EndIf}
FunctionEnd

Function un.remove
  Delete "$INSTDIR\$Line"
  ${If} ${FileExists} "$INSTDIR\$Line"
  ${AndIf} $Line != "uninstall.exe"
    StrCpy $Trouble "$INSTDIR\$Line"
  ${EndIf}
  ${GetParent} "$INSTDIR\$Line" $0
  ${If} $0 != $INSTDIR
    RMDir $0
  ${EndIf}
FunctionEnd
