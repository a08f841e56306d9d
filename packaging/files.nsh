; The files come all or not at all. They are unpacked into a folder beside the old ones, the old ones are put aside there and
; the new ones moved in; what fails, or was cut off, goes back from what stands where. files.txt lists a release's files.
;   ~setup\new\   ~setup\old\
;   ~setup\new.txt, all.txt   the files of the new release, and of both; all.txt is there once everything is unpacked

; Which of the folders above the files are not there yet.
Function find_made_folder
  ReadRegStr $Made SHCTX "${KEY}" MadeFolder
  ${If} $Installed == ""
    StrCpy $Made ""
    StrCpy $0 $INSTDIR
    ${DoUntil} ${FileExists} "$0\*.*"
      StrCpy $Made $0
      ${GetParent} $0 $0
      ${If} $0 == ""
        ${ExitDo}
      ${EndIf}
    ${Loop}
  ${EndIf}
FunctionEnd

Function unpack
  ClearErrors
  ${If} $Has64 == yes
    !insertmacro UNPACK64 "$Work\new"
  ${Else}
    !insertmacro UNPACK32 "$Work\new"
  ${EndIf}
  SetOutPath "$INSTDIR"
  WriteUninstaller "$Work\new\uninstall.exe"
  FileOpen $R9 "$Work\all" w
  !insertmacro EACH_LINE "" "$INSTDIR\files.txt" add_to_list
  !insertmacro EACH_LINE "" "$Work\new\files.txt" add_to_list
  FileClose $R9
  CopyFiles /SILENT "$Work\new\files.txt" "$Work\new.txt"
  StrCpy $Trouble ""
  !insertmacro EACH_LINE "" "$Work\new.txt" is_missing
  ${IfNot} ${FileExists} "$Work\new.txt"
  ${OrIf} $Trouble != ""
    Abort
  ${EndIf}
FunctionEnd

Function add_to_list
  FileWrite $R9 "$Line$\r$\n"
FunctionEnd

Function is_missing
  ${IfNot} ${FileExists} "$Work\new\$Line"
    StrCpy $Trouble "$Line"
  ${EndIf}
FunctionEnd

Function check_not_in_use
  again:
  StrCpy $Trouble ""
  !insertmacro EACH_LINE "" "$Work\all" is_in_use
  ${If} $Trouble != ""
    ${IfNot} ${Silent}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
        "A program is using $Trouble. Close the programs that use ZORBOffice, then press Retry." IDRETRY again
    ${EndIf}
    !insertmacro GIVE_UP ${IN_USE} "A program is using $Trouble. Nothing was changed."
  ${EndIf}
FunctionEnd

Function exchange
  ClearErrors
  Rename "$Work\all" "$Work\all.txt"
  StrCpy $Trouble ""
  !insertmacro EACH_LINE "" "$Work\all.txt" put_aside
  ${If} $Trouble == ""
    !insertmacro EACH_LINE "" "$Work\new.txt" move_in
  ${EndIf}
  ${If} $Trouble != ""
    !insertmacro GIVE_UP ${NOT_WRITTEN} "$Trouble cannot be written. Nothing was changed."
  ${EndIf}
FunctionEnd

; Moves $Line below $0 to below $1.
!macro MOVE_LINE
  ${GetParent} "$1\$Line" $2
  CreateDirectory $2
  ClearErrors
  Rename "$0\$Line" "$1\$Line"
!macroend

Function put_aside
  ${If} ${FileExists} "$INSTDIR\$Line"
    StrCpy $0 $INSTDIR
    StrCpy $1 "$Work\old"
    !insertmacro MOVE_LINE
    ${If} ${Errors}
      StrCpy $Trouble "$INSTDIR\$Line"
    ${EndIf}
  ${EndIf}
FunctionEnd

Function move_in
  StrCpy $0 "$Work\new"
  StrCpy $1 $INSTDIR
  !insertmacro MOVE_LINE
  ${If} ${Errors}
    StrCpy $Trouble "$INSTDIR\$Line"
  ${EndIf}
FunctionEnd

; From here on the new release is the one that is there.
Function commit
  Rename "$Work" "$INSTDIR\~setup-done"
  !insertmacro EACH_LINE "" "$INSTDIR\~setup-done\all.txt" remove_empty_folder
  RMDir /r "$INSTDIR\~setup-done"
FunctionEnd

Function restore
  ${If} ${FileExists} "$Work\all.txt"
    !insertmacro EACH_LINE "" "$Work\new.txt" take_out
    !insertmacro EACH_LINE "" "$Work\all.txt" put_back
  ${EndIf}
  SetOutPath "$TEMP"
  RMDir /r "$Work"
  RMDir /r "$INSTDIR\~setup-done"
  ClearErrors
FunctionEnd

; What still waits has not come in.
Function take_out
  ${IfNot} ${FileExists} "$Work\new\$Line"
    Delete "$INSTDIR\$Line"
    Call remove_empty_folder
  ${EndIf}
FunctionEnd

Function put_back
  ${If} ${FileExists} "$Work\old\$Line"
    StrCpy $0 "$Work\old"
    StrCpy $1 $INSTDIR
    !insertmacro MOVE_LINE
  ${EndIf}
FunctionEnd

Function remove_empty_folder
  ${GetParent} "$INSTDIR\$Line" $0
  ${If} $0 != $INSTDIR
    RMDir $0
  ${EndIf}
FunctionEnd
