; The installer for Windows: for the current user, without administrator rights. `/S` installs without a window.
; makensis -DVERSION=... -DX86=FOLDER -DX64=FOLDER -DHELP=FOLDER -DOUTPUT=FILE [-DTARGET=amd64-unicode] morpho.nsi
; X86 and X64 hold morpho.exe, Morpho.dll and Colorizer.dll of each machine. FrontPage is a 32-bit program and loads the
; 32-bit libraries, on 64-bit Windows, too. An installer for amd64-unicode is for a Windows that runs no 32-bit programs.

!ifndef TARGET
  !define TARGET x86-unicode
!endif
Target ${TARGET}
!include LogicLib.nsh
!include x64.nsh

Name "Morpho"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Morpho"
InstallDirRegKey HKCU "Software\Microsoft\Windows\CurrentVersion\Uninstall\Morpho" "InstallLocation"
SetCompressor /SOLID lzma
AllowSkipFiles off
ManifestDPIAware true
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Morpho"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Morpho installer"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Morpho"

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; A 32-bit program sees the 32-bit system folder under the name of the 64-bit one.
!if ${TARGET} == amd64-unicode
  !define REGSVR_X86 "$WINDIR\SysWOW64\regsvr32.exe"
  !define REGSVR_X64 "$SYSDIR\regsvr32.exe"
!else
  !define REGSVR_X86 "$SYSDIR\regsvr32.exe"
  !define REGSVR_X64 "$WINDIR\Sysnative\regsvr32.exe"
!endif

; Registers a library, or ends the installation with a sentence.
!macro Register REGSVR LIBRARY
  ExecWait '"${REGSVR}" /s "$INSTDIR\${LIBRARY}"' $0
  ${If} ${Errors}
  ${OrIf} $0 <> 0
    DetailPrint "${LIBRARY} could not be registered ($0)."
    MessageBox MB_OK|MB_ICONSTOP "$INSTDIR\${LIBRARY} could not be registered." /SD IDOK
    SetErrorLevel 3
    Abort
  ${EndIf}
!macroend

!macro Unregister REGSVR LIBRARY
  ${If} ${FileExists} "$INSTDIR\${LIBRARY}"
    ExecWait '"${REGSVR}" /s /u "$INSTDIR\${LIBRARY}"' $0
  ${EndIf}
!macroend

; Files that FrontPage has loaded can be neither replaced nor deleted; half of either is worse than none.
!macro RefuseWhileInUse
  ${If} ${FileExists} "$INSTDIR\x86\Morpho.dll"
    ClearErrors
    FileOpen $0 "$INSTDIR\x86\Morpho.dll" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONSTOP "Morpho is in use. Close FrontPage and Morpho, then try again." /SD IDOK
      SetErrorLevel 2
      Abort
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

Function .onInit
  !insertmacro RefuseWhileInUse
FunctionEnd

Function un.onInit
  !insertmacro RefuseWhileInUse
FunctionEnd

Section
  SetShellVarContext current
  SetOutPath "$INSTDIR\x86"
  File "${X86}\morpho.exe" "${X86}\Morpho.dll" "${X86}\Colorizer.dll"
  SetOutPath "$INSTDIR\help"
  File /r "${HELP}\*.*"
  StrCpy $1 "$INSTDIR\x86\morpho.exe"
  ${If} ${RunningX64}
    SetOutPath "$INSTDIR\x64"
    File "${X64}\morpho.exe" "${X64}\Morpho.dll" "${X64}\Colorizer.dll"
    StrCpy $1 "$INSTDIR\x64\morpho.exe"
  ${EndIf}
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Morpho"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1

  ${If} ${FileExists} "${REGSVR_X86}"
    !insertmacro Register "${REGSVR_X86}" "x86\Colorizer.dll"
    !insertmacro Register "${REGSVR_X86}" "x86\Morpho.dll"
  ${EndIf}
  ${If} ${RunningX64}
    !insertmacro Register "${REGSVR_X64}" "x64\Colorizer.dll"
    !insertmacro Register "${REGSVR_X64}" "x64\Morpho.dll"
  ${EndIf}
  CreateDirectory "$SMPROGRAMS\Morpho"
  CreateShortcut "$SMPROGRAMS\Morpho\Theme Morpho.lnk" "$1"
  CreateShortcut "$SMPROGRAMS\Morpho\Image Morpho.lnk" "$1" "image"
  CreateShortcut "$SMPROGRAMS\Morpho\Help.lnk" "$INSTDIR\help\index.html"
SectionEnd

; The user's settings and themes stay.
Section Uninstall
  SetShellVarContext current
  !insertmacro Unregister "${REGSVR_X86}" "x86\Morpho.dll"
  !insertmacro Unregister "${REGSVR_X86}" "x86\Colorizer.dll"
  ${If} ${RunningX64}
    !insertmacro Unregister "${REGSVR_X64}" "x64\Morpho.dll"
    !insertmacro Unregister "${REGSVR_X64}" "x64\Colorizer.dll"
  ${EndIf}
  RMDir /r "$SMPROGRAMS\Morpho"
  Delete "$INSTDIR\x86\morpho.exe"
  Delete "$INSTDIR\x86\Morpho.dll"
  Delete "$INSTDIR\x86\Colorizer.dll"
  RMDir "$INSTDIR\x86"
  Delete "$INSTDIR\x64\morpho.exe"
  Delete "$INSTDIR\x64\Morpho.dll"
  Delete "$INSTDIR\x64\Colorizer.dll"
  RMDir "$INSTDIR\x64"
  Delete "$INSTDIR\help\index.html"
  RMDir "$INSTDIR\help"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
