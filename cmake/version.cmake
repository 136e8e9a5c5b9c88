# The version of the product, which project() in the top CMakeLists.txt sets: as a header, and as the
# version resource of every binary of the Windows build. product/CMakeLists.txt writes it into qvx.ini.

# In a folder that is on the include path of whatever links header_packages.
string(REGEX REPLACE "\\.0$" "" version_number ${PROJECT_VERSION})
configure_file(${CMAKE_SOURCE_DIR}/cmake/qvx_version.h.in ${CMAKE_BINARY_DIR}/headers/qvx_version.h
               @ONLY)

# qvx_version_resource(TARGET FILE_NAME DESCRIPTION): gives a program or library its version resource.
function(qvx_version_resource target file_name description)
  string(REGEX REPLACE "\\..*" "" internal_name ${file_name})
  set(file_type VFT_DLL)
  if(file_name MATCHES "exe$")
    set(file_type VFT_APP)
  endif()
  set(resource ${CMAKE_BINARY_DIR}/version/${target}.rc)
  configure_file(${CMAKE_SOURCE_DIR}/cmake/version.rc.in ${resource} @ONLY)
  target_sources(${target} PRIVATE ${resource})
endfunction()

# Called after all targets exist.
function(qvx_version_resources)
  qvx_version_resource(qvx_initstart qvx_initstart.arx "奇维建筑启动与界面模块")
  qvx_version_resource(qvx_kernal qvx_kernal.arx "奇维建筑核心模块")
  qvx_version_resource(qvx_design qvx_design.arx "奇维建筑设计命令模块")
  qvx_version_resource(qvx_annotate qvx_annotate.arx "奇维建筑文字模块")
  qvx_version_resource(icon_library qvx.dll "奇维建筑菜单图标库")
  qvx_version_resource(qmn qmn.exe "菜单文件工具")
  qvx_version_resource(devhost devhost.exe "开发主程序")
  qvx_version_resource(arx qvxhost.dll "开发主程序接口库")
  qvx_version_resource(afx qvxafx.dll "开发主程序类库")
endfunction()
