<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>This page is not built yet.</source>
        <translation type="unfinished"></translation>
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
        <source>This page is not built yet.</source>
        <translation type="unfinished"></translation>
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
</TS>
