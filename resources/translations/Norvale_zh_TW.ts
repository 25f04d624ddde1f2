<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>正在移除「%1」... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>找不到瀏覽器擴充功能</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>瀏覽器擴充功能</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>搜尋擴充功能...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ 重新整理</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>請稍候...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>正在掃描瀏覽器擴充功能...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>正在掃描...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>顯示 %1 / %2 個擴充功能</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>共 %1 個擴充功能</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  移除所選項目 (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  移除所選項目</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>瀏覽器正在執行</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>下列瀏覽器仍有背景處理程序在執行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>、</translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>按一下「強制結束」可自動終止所有相關處理程序並繼續移除，或手動關閉後按「重試」。</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 仍有背景處理程序在執行。</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>關閉瀏覽器視窗後，背景處理程序可能仍在執行。請按一下「強制結束」自動終止，或手動關閉後按「重試」。</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>強制結束並移除</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>無法完全終止：%1&lt;br&gt;請在工作管理員中手動結束後再試一次。</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>無法完全終止 %1，請在工作管理員中手動結束所有 %2 處理程序後再試一次。</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>無法終止處理程序</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>移除擴充功能</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>確定要移除 &lt;b&gt;%1&lt;/b&gt; 嗎？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;將開啟 %2 的擴充功能管理頁面並複製擴充功能 ID&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>正在移除擴充功能...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ 已移除「%1」</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>自動移除失敗</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>無法自動移除 &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>已開啟 %1 的擴充功能管理頁面。&lt;br&gt;擴充功能 ID 已複製到剪貼簿：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手動移除後，請按一下&lt;b&gt;重新整理&lt;/b&gt;。</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>批次移除</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>確定要移除選取的 &lt;b&gt;%1&lt;/b&gt; 個擴充功能嗎？</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>正在移除 %1 個擴充功能...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>移除完成</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>已成功移除 &lt;b&gt;%1&lt;/b&gt; 個擴充功能。</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>清單將自動重新整理。</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>部分項目移除失敗</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>成功 &lt;b&gt;%1&lt;/b&gt; 個，失敗 &lt;b&gt;%2&lt;/b&gt; 個。</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>失敗的項目（請至瀏覽器中手動移除）：&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>已停用</translation>
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
        <translation>%1 個擴充功能</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>磁碟清理</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>掃描系統垃圾檔案，安全釋放磁碟空間</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>正在掃描…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>請稍候</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 重新掃描</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ 全選</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 清理選取項目</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>掃描完成</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ 清理完成，已釋放 &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ 取消全選</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>已選 &lt;b&gt;%1&lt;/b&gt; 類  ·  預計釋放 &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>找到 %1 類可清理的檔案，共 %2</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>已選 %1 類  ·  預計釋放 %2</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>掃描中…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Windows 暫存檔案</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Windows Update 快取</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Google Chrome 快取</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Microsoft Edge 快取</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Mozilla Firefox 快取</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>系統記錄檔</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Prefetch 預先讀取快取</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>縮圖快取</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>當機傾印檔案</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>資源回收筒</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>舊版 Windows 系統備份</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>磁碟清理</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>清理垃圾檔案</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>解除安裝軟體</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>管理已安裝的軟體</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows 應用程式</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>管理 UWP 應用程式</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>瀏覽器擴充功能</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>管理擴充功能</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>系統概觀</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● 即時</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>正在讀取系統資訊…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>已安裝的更新</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>即時效能</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>記憶體</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>磁碟</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>快速動作</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 核心</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>已開機 %1 小時 %2 分鐘</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>已開機 %1 天 %2 小時</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>強制移除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  強制移除所選項目</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>正在強制移除：%1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>正在掃描要移除的項目...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  請仔細檢查每個項目。高風險項目預設不會勾選。</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>取消全選</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  找不到可移除的項目。</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>正在移除所選項目...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>強制移除完成</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>已移除此應用程式及其相關檔案。</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>安裝位置 %1 是系統或使用者資料夾，將不予處理。</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>找不到可移除的項目</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>找到 &lt;b&gt;%1&lt;/b&gt; 個項目  ·  可釋放 &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>正在開始...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>強制移除完成  ·  已釋放 &lt;b&gt;%1&lt;/b&gt;</translation>
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
        <translation>安裝資料夾</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>應用程式資料</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>登錄檔</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>啟動</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>啟動捷徑</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>排程工作</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>服務</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ 高風險</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>正在結束處理程序...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>正在掃描安裝資料夾...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>正在掃描應用程式資料...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>正在掃描登錄檔...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>正在掃描啟動項目...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>正在掃描排程工作...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>正在掃描服務...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>安裝資料夾：%1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>應用程式資料：.../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>登錄檔解除安裝項目：%1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>啟動登錄項目：%1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>啟動捷徑：%1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>排程工作：%1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Windows 服務：%1（%2）</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>正在移除：%1</translation>
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
        <translation>無法載入頁面連結。

請聯絡技術支援或重新安裝軟體。</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>無法開啟瀏覽器</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>無法開啟預設瀏覽器。

請手動複製連結並在瀏覽器中開啟：
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>設定錯誤</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>關於 Norvale</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>語言已變更</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>語言已變更為：%1
應用程式即將重新啟動。</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>重新啟動失敗</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>請手動重新啟動應用程式。</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>清理殘留項目</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  清理殘留項目</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>正在掃描殘留檔案...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>正在初始化...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  找不到殘留檔案！</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>取消全選</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>正在掃描...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>找到 &lt;b&gt;%1&lt;/b&gt; 個項目  ·  可釋放 &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>找不到殘留檔案</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  清理選取項目</translation>
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
        <translation>✅  清理完成，已釋放 %1</translation>
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
        <translation>需確認</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>孤立的應用程式資料</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>快取檔案</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>記錄檔</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>當機報告</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>暫存檔案</translation>
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
        <translation>系統概觀</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>磁碟清理</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>解除安裝軟體</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Windows 應用程式</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>瀏覽器擴充功能</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>選單</translation>
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
        <translation>關閉</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  關於 Norvale</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  語言</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  說明</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  支援</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>還原</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>解除安裝軟體</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>管理已安裝的程式 · 批次解除安裝 · 清理登錄檔殘留項目</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> 個程式</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> 個未使用</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>搜尋已安裝的軟體...</translation>
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
        <translation>↺ 重新整理</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>依大小</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>依日期</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>依名稱</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>發行者</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>安裝日期</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>按一下「重新整理」以掃描已安裝的程式。</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>正在掃描已安裝的程式...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>正在讀取登錄項目，請稍候...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ 清理殘留項目</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>解除安裝選取項目</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>正在掃描...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>共 &lt;b&gt;%1&lt;/b&gt; 個程式</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>已選取 &lt;b&gt;%1&lt;/b&gt; 個  ·  可釋放 &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>確認解除安裝</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>確定要解除安裝「%1」嗎？</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>找不到解除安裝程式</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; 沒有內建的解除安裝程式。</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>使用&lt;b&gt;強制移除&lt;/b&gt;可刪除安裝資料夾、登錄項目及相關檔案。&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ 此動作無法復原。&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>強制移除…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>正在解除安裝：%1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ 已解除安裝：&lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;清理殘留項目 →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ 解除安裝失敗：&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>解除安裝失敗</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>無法使用內建的解除安裝程式解除安裝 &lt;b&gt;%1&lt;/b&gt;。</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>&lt;b&gt;強制移除&lt;/b&gt;將會：&lt;br&gt;• 結束所有執行中的處理程序&lt;br&gt;• 刪除安裝資料夾&lt;br&gt;• 移除登錄項目&lt;br&gt;• 清理啟動項目與服務&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ 此動作無法復原。確認前請仔細檢查各個項目。&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>找不到</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>找不到 &lt;b&gt;%1&lt;/b&gt; 的安裝資訊。&lt;br&gt;請手動移除。</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>批次解除安裝</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>確定要解除安裝選取的 %1 個程式嗎？
此動作無法復原。</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>解除安裝</translation>
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
        <translation>移除失敗（可能需要系統管理員權限）</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>這是受系統保護的應用程式，已移除目前使用者的註冊，但系統層級的元件可能會在重新開機後自動還原。
若要徹底移除，請以系統管理員身分執行本程式。</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Windows 應用程式</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>搜尋應用程式...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ 重新整理</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>發行者</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>安裝日期</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>正在移除應用程式...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>請稍候...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>正在掃描...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>正在掃描 Windows 應用程式...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>正在掃描 Windows 應用程式... 已找到 %1 個</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>顯示 %1 / %2 個應用程式</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>共 %1 個應用程式</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  移除所選項目</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  移除所選項目 (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>已選取 %1 個應用程式</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>無法解除安裝 Microsoft Edge</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge 是 Windows 系統元件，無法以此方式解除安裝。

若要變更預設瀏覽器，請前往
「設定 → 應用程式 → 預設應用程式」進行設定。</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>移除應用程式</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>確定要移除「%1」嗎？</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>批次移除</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>確定要移除選取的 %1 個應用程式嗎？
此動作無法復原。</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>正在移除 %1 個應用程式...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 個應用程式</translation>
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
        <translation>✓ 已移除 %1 個應用程式，正在重新整理...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>移除失敗</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>所有應用程式皆移除失敗。</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>部分項目移除失敗</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>成功 &lt;b&gt;%1&lt;/b&gt; 個，失敗 &lt;b&gt;%2&lt;/b&gt; 個。</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>失敗詳細資料：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系統預先安裝的應用程式（如 Edge、相片）可能受到保護，無法以此方式移除。</translation>
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
