; The installer, for the machine or for one user; docs/setup.md tells what it does and what it returns. script/package makes it:
;   makensis -DVERSION=5.0.0.42 -DRELEASE=1 -DPAYLOAD=payload.nsh -DICON=setup.ico -DOUT=setup.exe packaging/setup.nsi
; The payload defines the macros that unpack the files, UNPACK32 and UNPACK64, and the KB that they take, SIZE32 and SIZE64.
Unicode true
SetCompressor lzma     ; not /SOLID, which needs room for all the files in the temporary folder too
SetDateSave off        ; the same files give the same installer
CRCCheck force
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all
Name "ZORBOffice"
Caption "ZORBOffice ${VERSION}-${RELEASE}"
BrandingText " "
OutFile "${OUT}"
Icon "${ICON}"
UninstallIcon "${ICON}"
VIProductVersion "${VERSION}"
VIAddVersionKey ProductName "ZORBOffice"
VIAddVersionKey ProductVersion "${VERSION}-${RELEASE}"
VIAddVersionKey FileVersion "${VERSION}-${RELEASE}"
VIAddVersionKey FileDescription "Installs ZORBOffice"
VIAddVersionKey CompanyName "ZORBOffice"
VIAddVersionKey LegalCopyright ""

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\ZORBOffice"
!define CLASS "Software\Classes\CLSID\{495CDEB3-7F1E-4663-9DB2-E33437412CE0}\InprocServer32"

; What a run ends with.
!define CANCELLED 1
!define BROKEN_OFF 2   ; NSIS's own, also for a damaged file
!define OLDER 3
!define IN_USE 4
!define NO_ADMINISTRATOR 5
!define NOT_WRITTEN 6
!define NOT_REGISTERED 7
!define MISUSED 8

Var Scope        ; machine or user
Var Has64        ; yes on 64-bit Windows
Var Installed    ; the version that is there, as 5.0.0.42.1
Var Wanted       ; the folder that /D names
Var Work         ; where the new files wait and the old ones are kept until all is well
Var Line         ; of a list
Var Trouble      ; the file that something could not be done with
Var Registered   ; which bitnesses this run has registered
Var Made         ; the topmost folder that did not exist before
Var Said         ; yes once the user knows why it ends
Var Mutex

!include LogicLib.nsh
!include FileFunc.nsh
!include TextFunc.nsh
!include WordFunc.nsh
!include x64.nsh
!include MUI2.nsh
!include nsDialogs.nsh
!include "${PAYLOAD}"
!include "${__FILEDIR__}/common.nsh"
!insertmacro COMMON ""
!insertmacro COMMON "un."
!include "${__FILEDIR__}/files.nsh"
!include "${__FILEDIR__}/uninstall.nsh"
!include "${__FILEDIR__}/pages.nsh"

Function .onInit
  Call read_system
  Call check_switches
  System::Call 'kernel32::CreateMutex(p 0, i 0, t "ZORBOfficeSetup") p.s ?e'
  Pop $0
  Pop $Mutex
  ${If} $0 = 183  ; ERROR_ALREADY_EXISTS
    !insertmacro END_WITH ${IN_USE} "ZORBOffice is being installed already."
  ${EndIf}
  Call choose_scope
  ${If} ${Silent}
  ${AndIf} $Scope == machine
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != Admin
      !insertmacro END_WITH ${NO_ADMINISTRATOR} "To install for all users, run this as an administrator; or use /CurrentUser."
    ${EndIf}
  ${EndIf}
  ${GetOptions} "$CMDLINE" "/Uninstall" $0
  ${IfNot} ${Errors}
    Call uninstall_and_wait
  ${EndIf}
FunctionEnd

; A switch that is not understood may mean another scope than the one that would be taken.
Function check_switches
  ${GetParameters} $0
  ${Do}
    ${WordFind} "$0" " " "+1" $1
    ${WordFind} "$0" " " "+1}" $2
    ${If} $2 == $0
      StrCpy $2 ""
    ${EndIf}
    ${Select} "$1"
      ${Case5} "/S" "/AllUsers" "/CurrentUser" "/Force" "/Uninstall"
      ${CaseElse}
        ${If} $1 != ""
          !insertmacro END_WITH ${MISUSED} \
            "Not understood: $1. There are /S, /AllUsers, /CurrentUser, /Force, /Uninstall and /D=FOLDER."
        ${EndIf}
    ${EndSelect}
    StrCpy $0 $2
  ${LoopUntil} $0 == ""
FunctionEnd

; As a switch says; else what is there is kept up; else for the machine if that may be.
Function choose_scope
  StrCpy $Scope ""
  ${GetOptions} "$CMDLINE" "/AllUsers" $0
  ${IfNot} ${Errors}
    StrCpy $Scope machine
  ${EndIf}
  ${GetOptions} "$CMDLINE" "/CurrentUser" $0
  ${IfNot} ${Errors}
    ${If} $Scope != ""
      !insertmacro END_WITH ${MISUSED} "/AllUsers and /CurrentUser cannot be had together."
    ${EndIf}
    StrCpy $Scope user
  ${EndIf}
  ${If} $Scope == ""
    ReadRegStr $0 HKLM "${KEY}" InstallLocation
    ReadRegStr $1 HKCU "${KEY}" InstallLocation
    UserInfo::GetAccountType
    Pop $2
    ${If} $0 != ""
      StrCpy $Scope machine
    ${ElseIf} $1 == ""
    ${AndIf} $2 == Admin
      StrCpy $Scope machine
    ${Else}
      StrCpy $Scope user
    ${EndIf}
  ${EndIf}
  StrCpy $Wanted $INSTDIR
  Call enter_scope
FunctionEnd

; Where an earlier release is, this one goes there.
Function enter_scope
  ${If} $Scope == machine
    SetShellVarContext all
    StrCpy $0 "$PROGRAMFILES64\ZORBOffice"
  ${Else}
    SetShellVarContext current
    StrCpy $0 "$LOCALAPPDATA\Programs\ZORBOffice"
  ${EndIf}
  ReadRegStr $Installed SHCTX "${KEY}" Release
  ReadRegStr $INSTDIR SHCTX "${KEY}" InstallLocation
  ${If} $INSTDIR == ""
    StrCpy $INSTDIR $Wanted
  ${EndIf}
  ${If} $INSTDIR == ""
    StrCpy $INSTDIR $0
  ${EndIf}
FunctionEnd

; The uninstaller beside the files would go on by itself, and nobody would learn how it ended.
Function uninstall_and_wait
  ${IfNot} ${FileExists} "$INSTDIR\uninstall.exe"
    !insertmacro END_WITH ${NOT_WRITTEN} "ZORBOffice is not installed."
  ${EndIf}
  ReadRegStr $1 SHCTX "${KEY}" MadeFolder
  StrCpy $2 "/CurrentUser"
  ${If} $Scope == machine
    StrCpy $2 "/AllUsers"
  ${EndIf}
  ${If} ${Silent}
    StrCpy $2 "$2 /S"
  ${EndIf}
  ExecWait '"$INSTDIR\uninstall.exe" $2 _?=$INSTDIR' $0
  ${If} $0 == 0
    Delete "$INSTDIR\uninstall.exe"
    StrCpy $Made $1
    Call remove_made_folders
  ${EndIf}
  SetErrorLevel $0
  Quit
FunctionEnd

Section
  SetErrorLevel ${NOT_WRITTEN}  ; what an unpacking that breaks off ends with
  SetDetailsPrint textonly
  ${VersionCompare} "${VERSION}.${RELEASE}" "$Installed" $0
  ${GetOptions} "$CMDLINE" "/Force" $1
  ${If} ${Errors}
  ${AndIf} $Installed != ""
  ${AndIf} $0 = 2
    !insertmacro GIVE_UP ${OLDER} "A newer release is installed. Nothing was changed; /Force installs this one all the same."
  ${EndIf}
  Call find_made_folder
  StrCpy $Work "$INSTDIR\~setup"
  Call restore  ; what a run that was cut off has left
  Call unpack
  Call check_not_in_use
  Call exchange
  Call register
  Call write_entry
  Call commit
  SetErrorLevel 0
SectionEnd

Function register
  ClearErrors
  !insertmacro REGSVR32 32 ""
  ${If} $0 <> 0
    !insertmacro GIVE_UP ${NOT_REGISTERED} "The 32-bit library could not be registered (regsvr32: $0)."
  ${EndIf}
  StrCpy $Registered 32
  ${If} $Has64 == yes
    !insertmacro REGSVR32 64 ""
    ${If} $0 <> 0
      !insertmacro GIVE_UP ${NOT_REGISTERED} "The 64-bit library could not be registered (regsvr32: $0)."
    ${EndIf}
    StrCpy $Registered 64
  ${EndIf}
FunctionEnd

; In the list of installed programs.
Function write_entry
  StrCpy $0 ${SIZE32}
  ${If} $Has64 == yes
    StrCpy $0 ${SIZE64}
  ${EndIf}
  StrCpy $1 "/CurrentUser"
  ${If} $Scope == machine
    StrCpy $1 "/AllUsers"
  ${EndIf}
  ClearErrors
  WriteRegStr SHCTX "${KEY}" DisplayName "ZORBOffice"
  WriteRegStr SHCTX "${KEY}" DisplayVersion "${VERSION}-${RELEASE}"
  WriteRegStr SHCTX "${KEY}" Release "${VERSION}.${RELEASE}"
  WriteRegStr SHCTX "${KEY}" Publisher "ZORBOffice"
  WriteRegStr SHCTX "${KEY}" DisplayIcon "$INSTDIR\uninstall.exe,0"
  WriteRegStr SHCTX "${KEY}" InstallLocation "$INSTDIR"
  WriteRegStr SHCTX "${KEY}" MadeFolder "$Made"
  WriteRegStr SHCTX "${KEY}" UninstallString '"$INSTDIR\uninstall.exe" $1'
  WriteRegStr SHCTX "${KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" $1 /S'
  WriteRegDWORD SHCTX "${KEY}" EstimatedSize $0
  WriteRegDWORD SHCTX "${KEY}" NoModify 1
  WriteRegDWORD SHCTX "${KEY}" NoRepair 1
  ${If} ${Errors}
    !insertmacro GIVE_UP ${NOT_WRITTEN} "The list of installed programs cannot be written."
  ${EndIf}
FunctionEnd

; Whatever the reason, all is as it was.
Function .onInstFailed
  ${If} $Installed == ""
    ${If} $Registered != ""
      !insertmacro REGSVR32 32 "/u"
    ${EndIf}
    ${If} $Registered == 64
      !insertmacro REGSVR32 64 "/u"
    ${EndIf}
    DeleteRegKey SHCTX "${KEY}"
  ${EndIf}
  ${If} $Work != ""
    Call restore
    ${If} $Installed == ""
      Call remove_made_folders
    ${ElseIf} $Registered != ""
      !insertmacro REGSVR32 32 ""
      ${If} $Has64 == yes
        !insertmacro REGSVR32 64 ""
      ${EndIf}
    ${EndIf}
  ${EndIf}
  ${If} $Said == ""
    !insertmacro SAY "The files cannot be written to $INSTDIR: there may be no room, or no right to. Nothing was changed."
  ${EndIf}
FunctionEnd
