; Puts the programs of DIST on a Windows machine and takes them away again:
; for the user alone, without an administrator's rights, or for all users when
; that is asked for (in the window, or with /AllUsers). /S asks nothing, /D=PATH
; names the folder. The user's settings and bots are never touched.
;
; makensis -DVERSION=... -DDIST=FOLDER -DOUTPUT=FILE installer.nsi

; Like the programs, for 64-bit Windows.
Target amd64-unicode
Unicode true
ManifestDPIAware true
SetCompressor /SOLID lzma
SetDateSave off
AllowSkipFiles off
RequestExecutionLevel user

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include nsDialogs.nsh

Name "Fragsmith"
OutFile "${OUTPUT}"
BrandingText "Fragsmith ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Fragsmith"
VIAddVersionKey FileDescription "Fragsmith's installer"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey CompanyName "Fragsmith maintainers"
VIAddVersionKey LegalCopyright "Fragsmith maintainers"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Fragsmith"
!define PROGRAM "Software\Classes\Applications\fragsmith.exe"

!define MUI_ICON "packaging/windows/fragsmith.ico"
!define MUI_UNICON "packaging/windows/fragsmith.ico"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\fragsmith.exe"

Page custom AskForWhom TakeForWhom
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

Var ForAll    ; "1" for all users
Var ForMeBox
Var ForAllBox

!macro UseContext
  SetRegView 64
  ${If} $ForAll == 1
    SetShellVarContext all
  ${Else}
    SetShellVarContext current
  ${EndIf}
!macroend

; A folder that /D= or the user named stays; else it is that of the version that
; is there.
!macro UseFolder
  ${If} $INSTDIR == ""
    ReadRegStr $INSTDIR SHCTX "${UNINSTALL}" "InstallLocation"
    ${IfNot} ${FileExists} "$INSTDIR\uninstall.exe"
      StrCpy $INSTDIR ""
    ${EndIf}
  ${EndIf}
  ${If} $INSTDIR == ""
    ${If} $ForAll == 1
      StrCpy $INSTDIR "$PROGRAMFILES64\Fragsmith"
    ${Else}
      StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Fragsmith"
    ${EndIf}
  ${EndIf}
!macroend

Function .onInit
  StrCpy $ForAll 0
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/AllUsers" $1
  ${IfNot} ${Errors}
    StrCpy $ForAll 1
  ${EndIf}
  !insertmacro UseContext
  !insertmacro UseFolder
FunctionEnd

Function AskForWhom
  ${If} $ForAll == 1
    Abort
  ${EndIf}
  !insertmacro MUI_HEADER_TEXT "For whom?" "Who is going to use Fragsmith on this computer?"
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateRadioButton} 0 10u 100% 12u "For me alone"
  Pop $ForMeBox
  ${NSD_CreateRadioButton} 0 30u 100% 12u "For everybody (asks for an administrator's rights)"
  Pop $ForAllBox
  ${NSD_Check} $ForMeBox
  nsDialogs::Show
FunctionEnd

; The rights come with a new start of this program.
Function TakeForWhom
  ${NSD_GetState} $ForAllBox $0
  ${If} $0 == ${BST_CHECKED}
    ClearErrors
    ExecShell "runas" "$EXEPATH" "/AllUsers"
    ${If} ${Errors}
      Abort
    ${EndIf}
    Quit
  ${EndIf}
FunctionEnd

; A program that runs cannot be written over or removed: the files of two
; versions would lie side by side, or be left with nothing that removes them.
!macro NeedWritable PROGRAM
  ${Do}
    ClearErrors
    ${IfNot} ${FileExists} "$INSTDIR\${PROGRAM}"
      ${ExitDo}
    ${EndIf}
    FileOpen $0 "$INSTDIR\${PROGRAM}" a
    FileClose $0
    ${IfNot} ${Errors}
      ${ExitDo}
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Close Fragsmith first: \
      $INSTDIR\${PROGRAM} is in use, or you have no right to change it." \
      /SD IDCANCEL IDRETRY +2
    Abort
  ${Loop}
!macroend
!macro NeedAllWritable
  !insertmacro NeedWritable "fragsmith.exe"
  !insertmacro NeedWritable "fragsmith-cli.exe"
  !insertmacro NeedWritable "wzunzip.exe"
!macroend

; Offers the program for what it opens and takes no file away from another.
!macro OfferFor ENDING
  WriteRegStr SHCTX "${PROGRAM}\SupportedTypes" "${ENDING}" ""
  WriteRegNone SHCTX "Software\Classes\${ENDING}\OpenWithProgids" "Fragsmith.Bot"
!macroend
!macro OfferNoMoreFor ENDING
  DeleteRegValue SHCTX "Software\Classes\${ENDING}\OpenWithProgids" "Fragsmith.Bot"
  DeleteRegKey /ifempty SHCTX "Software\Classes\${ENDING}\OpenWithProgids"
  DeleteRegKey /ifempty SHCTX "Software\Classes\${ENDING}"
!macroend

Section
  !insertmacro NeedAllWritable
  SetOutPath "$INSTDIR"
  File "${DIST}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Fragsmith.lnk" "$INSTDIR\fragsmith.exe"

  WriteRegStr SHCTX "${PROGRAM}" "FriendlyAppName" "Fragsmith"
  WriteRegStr SHCTX "${PROGRAM}\shell\open\command" "" '"$INSTDIR\fragsmith.exe" "%1"'
  WriteRegStr SHCTX "Software\Classes\Fragsmith.Bot" "" "Bot of Quake III Arena"
  WriteRegStr SHCTX "Software\Classes\Fragsmith.Bot\DefaultIcon" "" "$INSTDIR\fragsmith.exe,0"
  WriteRegStr SHCTX "Software\Classes\Fragsmith.Bot\shell\open\command" "" '"$INSTDIR\fragsmith.exe" "%1"'
  !insertmacro OfferFor ".pk3"
  !insertmacro OfferFor ".c"

  WriteRegStr SHCTX "${UNINSTALL}" "DisplayName" "Fragsmith"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL}" "Publisher" "Fragsmith maintainers"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayIcon" "$INSTDIR\fragsmith.exe"
  WriteRegStr SHCTX "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr SHCTX "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

; Of what is written for a user or for all, only that goes which was written for
; the copy in this folder: there may be another.
!macro ForgetCopy CONTEXT
  SetShellVarContext ${CONTEXT}
  ReadRegStr $0 SHCTX "${UNINSTALL}" "InstallLocation"
  GetFullPathName /SHORT $0 $0
  GetFullPathName /SHORT $1 $INSTDIR
  ${If} $0 == $1
  ${AndIf} $0 != ""
    Delete "$SMPROGRAMS\Fragsmith.lnk"
    DeleteRegKey SHCTX "${PROGRAM}"
    DeleteRegKey SHCTX "Software\Classes\Fragsmith.Bot"
    !insertmacro OfferNoMoreFor ".pk3"
    !insertmacro OfferNoMoreFor ".c"
    DeleteRegKey SHCTX "${UNINSTALL}"
  ${EndIf}
!macroend

; Only what was put there goes, and the folder when nothing else is in it.
Section Uninstall
  !insertmacro NeedAllWritable
  SetRegView 64
  !insertmacro ForgetCopy current
  !insertmacro ForgetCopy all
  Delete "$INSTDIR\fragsmith.exe"
  Delete "$INSTDIR\fragsmith-cli.exe"
  Delete "$INSTDIR\wzunzip.exe"
  Delete "$INSTDIR\nopk3.tga"
  Delete "$INSTDIR\notfound.tga"
  Delete "$INSTDIR\notinuse.tga"
  Delete "$INSTDIR\userdef.tga"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd
