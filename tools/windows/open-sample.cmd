@echo off
rem Opens the host with the sample drawing and the modules. The window of this script closes at once.
setlocal
set "bin=%~dp0bin"
if not exist "%bin%\arxhost.exe" (
  chcp 65001 >nul
  echo 找不到 "%bin%\arxhost.exe"。请先把压缩包全部解压，再运行 open-sample.cmd。
  echo "%bin%\arxhost.exe" is missing. Unpack the whole archive first, then run open-sample.cmd.
  pause
  exit /b 1
)
start "" "%bin%\arxhost.exe" "%bin%\drawings\bracket.dxf" /ld ZNKTControls.arx /ld drawing_check.arx /ld gallery.arx /ld entity_hover.arx %*
