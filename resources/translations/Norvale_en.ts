<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>Removing &quot;%1&quot;... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>No browser extensions found</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Browser Extension</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>Search Extensions...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Refresh</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Please wait...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>Scanning browser extensions...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Scanning...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>Display %1 / %2 extensions</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>Total %1 extensions</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑 Remove selected (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑 Remove Selected</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>Browser is running</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>The following browsers have background processes still running:&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>Click &quot;Force Stop&quot; to automatically terminate all related processes and continue with the removal, or manually close and click &quot;Retry&quot;.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; background processes are still running.</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>After closing the browser window, the background process may still exist. Please click &quot;Force Quit&quot; to automatically terminate it, or manually close it and then click &quot;Retry&quot;.</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>Force Quit and Remove</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>Unable to terminate completely: %1&lt;br&gt;Please manually end it in Task Manager and try again.</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>Cannot fully terminate %1, please manually end all %2 processes in Task Manager and try again.</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>Unable to terminate the process</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>Remove Extension</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>Are you sure you want to remove &lt;b&gt;%1&lt;/b&gt;?&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;This will open the %2 extension management page and copy the extension ID&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>Removing extension...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ Removed &quot;%1&quot;</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>Failed to remove automatically</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Unable to automatically remove &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>Opened %1 extension management page.&lt;br&gt;Extension ID has been copied to clipboard:&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;Click &lt;b&gt;Refresh&lt;/b&gt; after manual removal.</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Batch Remove</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>Are you sure you want to remove the selected &lt;b&gt;%1&lt;/b&gt; extensions?</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>Removing %1 extension(s)...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>Removal completed</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>Removed &lt;b&gt;%1&lt;/b&gt; extension(s) successfully.</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>The list will refresh automatically.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Partial removal failed</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Success &lt;b&gt;%1&lt;/b&gt;, failure &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>Failed items (please manually remove from the browser):&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Remove</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>%1 extensions</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Disk Cleanup</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>Scan system junk files, safely release disk space</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>Scanning...</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>Please wait</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 Rescan</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ Select All</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>Clean up selected items</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Scan completed</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ Cleanup completed, released &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ Deselect All</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>Selected &lt;b&gt;%1&lt;/b&gt; categories  ·  Estimated release &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>Found %1 types of files that can be cleaned, totaling %2</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>Selected %1 types  ·  Estimated release %2</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>Scanning...</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Windows Temporary Files</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Windows Update Cache</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Google Chrome Cache</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Microsoft Edge Cache</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Mozilla Firefox Cache</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>System Log Files</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Prefetch Read Cache</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>Thumbnail Cache</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>Crash Dump File</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>Recycle Bin</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>Windows Old System Backup</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Disk Cleanup</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>Clean up junk files</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Software Uninstall</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>Manage Installed Software</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows App</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>Manage UWP Applications</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Browser Extension</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>Manage Extensions</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>System Overview</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● Real-time</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>Reading system information...</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>Updates Installed</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>Real-time Performance</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>Memory</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Disk</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>Quick Actions</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 Core</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>Running for %1 hours %2 minutes</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>%1 days %2 hours running</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>Force Remove</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  Force Remove Selected</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>Forcefully removing: %1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>Scanning for removal targets...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  Review each item carefully. High-risk items are unchecked by default.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Deselect All</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  Nothing found to remove.</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>Removing selected items...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>Force remove complete</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>The application and its associated files have been removed.</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>Install location %1 is a system or user folder: it is left alone.</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>Nothing found to remove</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Starting...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Done ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>Install Dir</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>App Data</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registry</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Startup</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>Startup Link</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>Scheduled Task</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ High Risk</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>Killing processes...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>Scanning install directory...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>Scanning app data...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>Scanning registry...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>Scanning startup items...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>Scanning scheduled tasks...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>Scanning services...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>Install folder: %1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>App data: .../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>Registry uninstall entry: %1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>Startup registry: %1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>Startup shortcut: %1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>Scheduled task: %1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Windows service: %1 (%2)</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>Removing: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Done: %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Unable to load the page links.

Please contact technical support or reinstall the software.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Cannot Open Browser</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Unable to open the default browser.

Please copy the link and open it manually:
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>Configuration Error</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>About Norvale</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Language Changed</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>Language changed to: %1
The application will restart now.</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>Restart Failed</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>Please restart the application manually.</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>Clean Residues</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  Clean Residues</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>Scanning for residue files...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Initializing...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  No residue files found!</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Deselect All</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Scanning...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>No residue files found</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  Clean Selected</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Cleaning...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>Cleaning... %1%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  Cleaned — freed %1</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Done ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>Safe</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>Orphaned App Data</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>Cache Files</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Log Files</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Crash Reports</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Temp Files</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>Function</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>System Overview</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>Disk Cleanup</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Uninstall Software</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows App</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Browser Extensions</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  About Norvale</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  Language</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  Help</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬 Support</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restore</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>Software Uninstall</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>Manage installed programs · Batch uninstall · Clean registry residues</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> apps</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> unused</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>Search installed software...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Unused</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ Refresh</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>By Size</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>By Date</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>By Name</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Publisher</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>Install Date</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>Click Refresh to scan installed programs.</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Scanning installed programs...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>Reading registry entries, please wait...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ Clean Residues</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>Uninstall Selected</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Scanning...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; programs</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>Confirm Uninstall</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>Uninstall &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>No Uninstaller Found</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>Force Remove…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>Uninstalling: %1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>Uninstall Failed</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>Not Found</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>Batch Uninstall</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>Uninstall %1 selected apps?
This cannot be undone.</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>Remove</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>Removal failed (may require administrator privileges)</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>System-protected apps have been removed from the current user&apos;s registry, but system-level components may be automatically restored after reboot.
To completely delete them, please run this program as an administrator.</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Windows Apps</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>Searching for apps...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>Publisher</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>Installation Date</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>Removing application...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Please wait...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Scanning...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>Scanning Windows apps...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>Scanning Windows apps... %1 found</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>Display %1 / %2 applications</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>Total %1 applications</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑 Remove selected</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>Remove selected (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>%1 apps selected</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>Unable to uninstall Microsoft Edge</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge is a Windows system component and cannot be uninstalled this way.

To change the default browser, please go to
&quot;Settings -&gt; Apps -&gt; Default Apps&quot; to make the changes.</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>Remove Application</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>Are you sure you want to remove &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Batch Remove</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>Are you sure you want to remove the selected %1 applications?
This action cannot be undone.</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>Removing %1 apps...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 applications</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>Removing &quot;%1&quot;... (%2/%3)</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1: %2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ %1 apps removed, refreshing...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>Removal failed</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>All apps removal failed.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Partial removal failed</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Success &lt;b&gt;%1&lt;/b&gt;, failure &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>Failure details:&lt;br&gt;%1&lt;br&gt;&lt;br&gt;System pre-installed apps (such as Edge, Photos) may be protected and cannot be removed in this way.</translation>
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
