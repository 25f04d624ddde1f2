<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
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
        <source>This page is not built yet.</source>
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
