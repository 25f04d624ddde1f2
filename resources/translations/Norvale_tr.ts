<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>、</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>重试</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>取消</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>移除</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>回收站</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>内存</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Registry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>最小化</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>最大化</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关闭</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>还原</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> unused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>名称</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>发行者</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>版本</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>大小</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
