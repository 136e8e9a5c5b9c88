// Chinese translations: help and usage errors.
#include "tools/qmn/phrases.h"

namespace {

constexpr char kOverviewEnglish[] = R"(Examples:
  qmn check qvx.qmn                    every problem, with its line and column
  qmn check --format sarif menus       all sources of a folder, for another program
  qmn explain QMN052                   what a finding means, with an example
  qmn compile -W qvx.qmn               writes qvx.qmc beside it; shows warnings too
  qmn compile - -o - <a.qmn >a.qmc     from standard input to standard output
  qmn fmt qvx.qmn                      puts a source into its canonical layout
  qmn fmt --diff menus                 shows what that would change
  qmn fmt --to 936 menu.qmn            from UTF-8 to the code page of the shell
  qmn why qvx.qmn --type QVX_WALL --layer 0 --layer-key WALL=0
                                       which block a selection gets, and why not another
  qmn which --product product          which menu file the module would load, and why
  qmn dump qvx.qmn --tree              an outline of the menus
  qmn decompile old.qmc -o again.qmn   source that compiles to the same bytes
  qmn load old.qmc -o new.qmc          reads a compiled file and writes it again

Exit codes: 0 fine, 1 something is wrong in the input, 2 wrong usage,
3 a file could not be read or written.

qmn - menu files of the shell)";

constexpr char kOverviewChinese[] = R"(示例：
  qmn check qvx.qmn                    找出所有问题，附行号与列号
  qmn check --format sarif menus       检查文件夹中的所有源文件，结果供其他程序使用
  qmn explain QMN052                   解释一个问题，附例子
  qmn compile -W qvx.qmn               在同一文件夹写出 qvx.qmc，也显示警告
  qmn compile - -o - <a.qmn >a.qmc     从标准输入到标准输出
  qmn fmt qvx.qmn                      把源文件排成规范格式
  qmn fmt --diff menus                 显示这样会改变什么
  qmn fmt --to 936 menu.qmn            从 UTF-8 转换为菜单所用的代码页
  qmn why qvx.qmn --type QVX_WALL --layer 0 --layer-key WALL=0
                                       所选图元得到哪个菜单块，其他的为什么不符合
  qmn which --product product          模块会装入哪个菜单文件及原因
  qmn dump qvx.qmn --tree              菜单的大纲
  qmn decompile old.qmc -o again.qmn   还原为编译结果相同的源文件
  qmn load old.qmc -o new.qmc          读取编译后的文件并重新写出

返回值：0 正常，1 输入有问题，2 用法错误，3 文件无法读取或写入。

qmn - 菜单文件工具)";

constexpr Translation kRows[] = {
    {"'{0}' is none of {1}", "'{0}' 不是 {1} 之一"},
    {"there is no code page {0} here", "没有代码页 {0}"},
    {"code page of narrow text: 874, 932, 936 (the default), 949, 950, 1250 to 1258 or 65001 "
     "(UTF-8)",
     "窄字符文字的代码页：874、932、936（默认）、949、950、1250 至 1258 或 65001（UTF-8）"},
    {"'{0}' is no number from {1} to {2}", "'{0}' 不是 {1} 至 {2} 之间的数"},
    {"only these rules: codes, the beginning of codes (QMN05), or names",
     "只检查这些规则：编号、编号的开头（QMN05）或名称"},
    {"all rules but these", "不检查这些规则"},
    {"icon library (.dll); images that it lacks become findings",
     "图标库（.dll）；其中没有的图像作为问题报告"},
    {"list of commands, as 'devhost --list-commands' prints it; other commands and functions "
     "become findings",
     "命令表，由 'devhost --list-commands' 输出；表中没有的命令与函数作为问题报告"},
    {"Compile a menu source", "编译菜单源文件"},
    {"menu source (.qmn)", "菜单源文件（.qmn）"},
    {"compiled file; IN with .qmc unless given", "编译后的文件；默认为 IN 加 .qmc"},
    {"show warnings too", "也显示警告"},
    {"print the host's messages and write what it would, after errors too",
     "输出主程序的信息并写出它会写的内容，出错后也写"},
    {"Read a compiled file and write it again", "读取编译后的文件并重新写出"},
    {"compiled file (.qmc)", "编译后的文件（.qmc）"},
    {"where to write it; without it nothing is written", "写到哪里；不指定则不写"},
    {"print the host's messages and write what it has read, after errors too",
     "输出主程序的信息并写出它读到的内容，出错后也写"},
    {"Show the model of a menu file", "显示菜单文件的模型"},
    {"menu source or compiled file", "菜单源文件或编译后的文件"},
    {"canonical JSON (the default)", "规范 JSON（默认）"},
    {"outline", "大纲"},
    {"fields of the compiled file with offsets", "编译后文件的各字段及其偏移"},
    {"Find every problem of menu sources", "找出菜单源文件的所有问题"},
    {"menu sources (.qmn), or folders of them", "菜单源文件（.qmn）或其文件夹"},
    {"text (the default), json, sarif or github", "text（默认）、json、sarif 或 github"},
    {"what gives exit code 1: error (the default) or warning",
     "返回 1 的条件：error（默认）或 warning"},
    {"list the rules; no FILE", "列出规则，不带 FILE"},
    {"Put menu sources into their canonical layout", "把菜单源文件排成规范格式"},
    {"menu sources, or folders of them; rewritten where they stand",
     "菜单源文件或其文件夹；就地改写"},
    {"write nothing; name the files that would change, and exit with 1",
     "不写文件；列出会改变的文件并返回 1"},
    {"write nothing; show what would change, and exit with 1",
     "不写文件；显示会改变的内容并返回 1"},
    {"convert to this code page: utf-8, 936, ...; from UTF-8 and UTF-16 as found, else from "
     "--codepage",
     "转换为此代码页：utf-8、936 等；原文件为 UTF-8 或 UTF-16 时自动识别，否则按 --codepage"},
    {"Turn a compiled file back into source", "把编译后的文件还原为源文件"},
    {"menu source that is not there yet; standard output unless given",
     "尚不存在的菜单源文件；默认为标准输出"},
    {"overwrite the output", "覆盖输出文件"},
    {"Show which block a selection gets, and why", "显示所选图元得到哪个菜单块及原因"},
    {"type of a selected object; nothing selected without one", "所选图元的类型；不指定则没有选择"},
    {"its layer; 0 unless given", "其图层；默认为 0"},
    {"how many of it", "其数量"},
    {"KEY=LAYER, the layer that @KEY means", "KEY=LAYER，@KEY 所指的图层"},
    {"CODE=VALUE, what all objects have for another group", "CODE=VALUE，所有图元的其他组的值"},
    {"in paper space, for nothing selected", "在图纸空间（没有选择时）"},
    {"the answer as JSON", "以 JSON 输出结果"},
    {"Show which menu file the module would load", "显示模块会装入哪个菜单文件"},
    {"folder of the support path; more than one are searched in their order",
     "支持路径中的文件夹；多个时按顺序查找"},
    {"the host's profile, \"default\" unless given; \"\" for none",
     "主程序的配置，默认为 \"default\"；\"\" 表示没有"},
    {"settings file; QVX_SETTINGS_FILE or the registry unless given",
     "设置文件；默认为 QVX_SETTINGS_FILE 或注册表"},
    {"release of the host; 24.0 unless given", "主程序的版本；默认为 24.0"},
    {"Explain a rule of 'qmn check'", "解释 'qmn check' 的规则"},
    {"code (QMN052), its beginning (QMN05), or name", "编号（QMN052）、其开头（QMN05）或名称"},
    {"Show the options of a command", "显示命令的选项"},
    {"the command; an overview unless given", "命令；默认为总览"},
    {"show this and stop", "显示此说明并结束"},
    {"show the version and stop", "显示版本并结束"},
    {"the languages are zh and en", "语言为 zh 或 en"},
    {"language of the messages, zh or en; that of the system unless given",
     "信息的语言，zh 或 en；默认与系统相同"},
    {"Usage", "用法"},
    {"OPTIONS", "选项"},
    {"COMMAND", "命令"},
    {"COMMANDS", "命令"},
    {"Arguments", "参数"},
    {"Options", "选项"},
    {"Commands", "命令"},
    {"required", "必需"},
    {"VALUE", "值"},
    {"there is no command '{0}'", "没有命令 '{0}'"},
    {"there is no command '{0}'; did you mean '{1}'?", "没有命令 '{0}'；是否应为 '{1}'？"},
    {"'qmn help {0}' explains its options", "用 'qmn help {0}' 查看其选项"},
    {"'qmn help' lists the commands", "用 'qmn help' 列出所有命令"},
    {"there is no option '{0}'; did you mean '{1}'?", "没有选项 '{0}'；是否应为 '{1}'？"},
    {"there is no option '{0}'", "没有选项 '{0}'"},
    {"'{0}' is one argument too many", "多余的参数 '{0}'"},
    {"a command is missing; 'qmn help' lists them", "缺少命令；用 'qmn help' 列出所有命令"},
    {"{0} is missing", "缺少 {0}"},
    {"{0} and {1} exclude each other", "{0} 与 {1} 不能同时使用"},
    {"{0} needs a value", "{0} 需要一个值"},
    {"{0} needs a number", "{0} 需要一个数"},
    {kOverviewEnglish, kOverviewChinese},
};

}  // namespace

std::span<const Translation> OptionPhrases() { return kRows; }

const char* const kOverview = kOverviewEnglish;
