<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>正在移除「%1」... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>未找到浏览器扩展</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>浏览器扩展</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>搜索扩展...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ 刷新</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>请稍候...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>正在扫描浏览器扩展...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>正在扫描...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>显示 %1 / %2 个扩展</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>共 %1 个扩展</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  移除所选 (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  移除所选</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>浏览器正在运行</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>、</translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>强制结束并移除</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>无法终止进程</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>移除扩展</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>正在移除扩展...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ 已移除「%1」</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>自动移除失败</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>批量移除</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>正在移除 %1 个扩展...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>移除完成</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>列表将自动刷新。</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>部分移除失败</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>%1 个扩展</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>磁盘清理</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>扫描系统垃圾文件，安全释放磁盘空间</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>正在扫描…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>请稍候</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 重新扫描</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ 全选</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 清理选中项</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>扫描完成</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ 取消全选</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>发现 %1 类可清理文件，共 %2</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>已选 %1 类  ·  预计释放 %2</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>扫描中…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Windows 临时文件</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Windows Update 缓存</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Google Chrome 缓存</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Microsoft Edge 缓存</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Mozilla Firefox 缓存</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>系统日志文件</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Prefetch 预读缓存</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>缩略图缓存</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>崩溃转储文件</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>回收站</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>Windows 旧系统备份</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>磁盘清理</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>清理垃圾文件</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>软件卸载</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>管理已装软件</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows App</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>管理UWP应用</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>浏览器扩展</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>管理扩展插件</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>系统概览</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● 实时</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>正在读取系统信息…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>已安装更新</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>实时性能</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>快速操作</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 核</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>已运行 %1 小时 %2 分钟</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>已运行 %1 天 %2 小时</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>强制删除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  强制删除所选项</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>正在强制删除：%1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>正在扫描可删除的项目...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  请仔细检查每一项。高风险项默认不勾选。</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>全不选</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  未找到可删除的项目。</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>正在删除所选项目...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>强制删除完成</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>该程序及其相关文件已被删除。</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>安装位置 %1 是系统或用户文件夹，不会被处理。</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>未找到可删除的项目</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>找到 &lt;b&gt;%1&lt;/b&gt; 项  ·  可释放 &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>正在开始...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>强制删除完成  ·  已释放 &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>完成 ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>安装目录</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>应用数据</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>注册表</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>启动项</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>启动快捷方式</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>计划任务</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ 高风险</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>正在结束进程...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>正在扫描安装目录...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>正在扫描应用数据...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>正在扫描注册表...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>正在扫描启动项...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>正在扫描计划任务...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>正在扫描服务...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>安装目录：%1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>应用数据：.../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>注册表卸载项：%1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>启动项注册表：%1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>启动快捷方式：%1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>计划任务：%1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Windows 服务：%1（%2）</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>正在删除：%1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>已完成：%1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>无法加载页面链接。

请联系技术支持或重新安装软件。</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>无法打开浏览器</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>无法打开默认浏览器。

请手动复制链接访问：
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>配置错误</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>关于 Norvale</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>语言已更改</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>语言已更改为：%1
应用程序将立即重新启动。</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>重新启动失败</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>请手动重新启动应用程序。</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>清理残留</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  清理残留</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>正在扫描残留文件...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>正在初始化...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  未发现残留文件！</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>取消全选</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>正在扫描...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>发现 &lt;b&gt;%1&lt;/b&gt; 项  ·  可释放 &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>未发现残留文件</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  清理选中项</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>正在清理...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>正在清理... %1%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  清理完成，已释放 %1</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>完成 ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>安全</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>需确认</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>孤立的应用数据</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>缓存文件</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>日志文件</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>崩溃报告</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>临时文件</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>系统概览</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>磁盘清理</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>软件卸载</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows App</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>浏览器扩展</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  关于 Norvale</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  语言</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  帮助</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  支持</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>还原</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>软件卸载</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>管理已安装程序 · 批量卸载 · 清理注册表残留</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> 个软件</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> 个未使用</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>搜索已安装的软件...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ 刷新</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>按大小</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>按日期</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>按名称</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>发布者</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>安装日期</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>点击“刷新”扫描已安装的程序。</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>正在扫描已安装的程序...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>正在读取注册表项，请稍候...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ 清理残留</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>卸载选中项</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>正在扫描...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>共 &lt;b&gt;%1&lt;/b&gt; 个程序</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>已选 &lt;b&gt;%1&lt;/b&gt; 个  ·  可释放 &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>确认卸载</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>确定要卸载“%1”吗？</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>未找到卸载程序</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 没有自带的卸载程序。</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>使用&lt;b&gt;强制删除&lt;/b&gt;可删除安装文件夹、注册表项及相关文件。&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ 此操作无法撤销。&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>强制删除…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>正在卸载：%1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ 已卸载：&lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;清理残留 →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ 卸载失败：&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>卸载失败</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>无法使用自带的卸载程序卸载 &lt;b&gt;%1&lt;/b&gt;。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>&lt;b&gt;强制删除&lt;/b&gt;将会：&lt;br&gt;• 结束所有正在运行的进程&lt;br&gt;• 删除安装文件夹&lt;br&gt;• 删除注册表项&lt;br&gt;• 清理启动项和服务&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ 此操作无法撤销。确认前请仔细检查各项。&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>找不到 &lt;b&gt;%1&lt;/b&gt; 的安装信息。&lt;br&gt;请手动删除。</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>批量卸载</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>确定要卸载选中的 %1 个软件吗？
此操作无法撤销。</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>卸载</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>移除失败（可能需要管理员权限）</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Windows 应用</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>搜索应用...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ 刷新</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>发行者</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>安装日期</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>正在移除应用...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>请稍候...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>正在扫描...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>正在扫描 Windows 应用...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>正在扫描 Windows 应用... 已找到 %1 个</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>显示 %1 / %2 个应用</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>共 %1 个应用</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  移除所选</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  移除所选 (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>已选择 %1 个应用</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>无法卸载 Microsoft Edge</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>移除应用</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>确定要移除 &quot;%1&quot;？</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>批量移除</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>确定移除选中的 %1 个应用？
此操作不可撤销。</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>正在移除 %1 个应用...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 个应用</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>正在移除「%1」...（%2/%3）</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1：%2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ 已移除 %1 个应用，正在刷新...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>移除失败</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>所有应用移除失败。</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>部分移除失败</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
