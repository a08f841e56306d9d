; What a user sees who starts the installer by hand.
Var ForMachine

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
Page custom scope_page leave_scope_page
!define MUI_PAGE_CUSTOMFUNCTION_PRE skip_if_installed
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

Function scope_page
  !insertmacro MUI_HEADER_TEXT "Who may use it" "Install for all users of this computer, or for you alone."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateRadioButton} 0 10u 100% 12u "For &all users of this computer (an administrator is needed)"
  Pop $ForMachine
  ${NSD_CreateRadioButton} 0 28u 100% 12u "For &me alone"
  Pop $1
  ${If} $Scope == machine
    ${NSD_Check} $ForMachine
  ${Else}
    ${NSD_Check} $1
  ${EndIf}
  nsDialogs::Show
FunctionEnd

Function leave_scope_page
  StrCpy $Scope user
  ${NSD_GetState} $ForMachine $0
  ${If} $0 = ${BST_CHECKED}
    StrCpy $Scope machine
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != Admin
      ; Asks for the rights; that process goes on instead of this one.
      System::Call 'kernel32::CloseHandle(p $Mutex)'
      ExecShell runas "$EXEPATH" "/AllUsers"
      Quit
    ${EndIf}
  ${EndIf}
  Call enter_scope
FunctionEnd

Function skip_if_installed
  ${If} $Installed != ""
    Abort
  ${EndIf}
FunctionEnd
