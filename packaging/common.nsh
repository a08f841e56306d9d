; For the installer and the uninstaller, whose functions NSIS keeps apart.

!macro SAY text
  ${If} ${Silent}
    System::Call 'kernel32::GetStdHandle(i -11) p.r9'
    FileWrite $9 "ZORBOffice setup: ${text}$\r$\n"
  ${Else}
    MessageBox MB_OK|MB_ICONSTOP "${text}"
  ${EndIf}
  StrCpy $Said yes
!macroend

; Before anything was begun.
!macro END_WITH code text
  SetErrorLevel ${code}
  !insertmacro SAY "${text}"
  Quit
!macroend

; In a section: what was begun is taken back.
!macro GIVE_UP code text
  SetErrorLevel ${code}
  !insertmacro SAY "${text}"
  Abort
!macroend

; Has the library of a bitness registered or, with /u, unregistered; $0 is what regsvr32 says. The installer has 32 bits, and
; sees the 64-bit programs of Windows in the folder of another name.
!macro REGSVR32 bits undo
  StrCpy $1 "$SYSDIR"
  ${If} ${bits} = 64
    StrCpy $1 "$WINDIR\sysnative"
  ${EndIf}
  StrCpy $2 ""
  ${If} $Scope == user
    StrCpy $2 "/n /i:user"
  ${EndIf}
  ClearErrors
  ExecWait '"$1\regsvr32.exe" /s ${undo} $2 "$INSTDIR\win${bits}\ZORBOffice.ocx"' $0
  ${If} ${Errors}
    StrCpy $0 -1
    ClearErrors
  ${EndIf}
!macroend

!macro COMMON un
; On ARM only the 32-bit library: which programs load the 64-bit one there has not been tried.
Function ${un}read_system
  StrCpy $Has64 no
  ${If} ${IsNativeAMD64}
    StrCpy $Has64 yes
    SetRegView 64
  ${EndIf}
FunctionEnd

; Calls a function for each line of a list, which is in $Line then; a list that is not there has none. Stack: list, function.
Function ${un}each_line
  Pop $R1
  Pop $R0
  ${IfNot} ${FileExists} $R0
    Return
  ${EndIf}
  FileOpen $R2 $R0 r
  ${Do}
    ClearErrors
    FileRead $R2 $Line
    ${If} ${Errors}
      ${ExitDo}
    ${EndIf}
    ${TrimNewLines} $Line $Line
    Call $R1
  ${Loop}
  FileClose $R2
  ClearErrors
FunctionEnd

; A library that a program has loaded cannot be opened for writing.
Function ${un}is_in_use
  ${If} ${FileExists} "$INSTDIR\$Line"
    ClearErrors
    FileOpen $0 "$INSTDIR\$Line" a
    ${If} ${Errors}
      StrCpy $Trouble "$INSTDIR\$Line"
    ${Else}
      FileClose $0
    ${EndIf}
  ${EndIf}
FunctionEnd

; Removes the folder of the files and those above it, as far as setup made them and nothing is in them.
Function ${un}remove_made_folders
  SetOutPath "$TEMP"
  StrCpy $0 $INSTDIR
  ${DoWhile} $Made != ""
    RMDir $0
    ${If} $0 == $Made
      ${ExitDo}
    ${EndIf}
    ${GetParent} $0 $0
    ${If} $0 == ""
      ${ExitDo}
    ${EndIf}
  ${Loop}
  ClearErrors
FunctionEnd
!macroend

!macro EACH_LINE un list function
  Push "${list}"
  GetFunctionAddress $0 ${un}${function}
  Push $0
  Call ${un}each_line
!macroend
